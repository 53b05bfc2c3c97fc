#pragma once

#include "toolkit/operations.h"
#include "toolkit/qt/qthost.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

// What nearly every test with windows needs comes with this header.
namespace brindor::tests {

// The window of a screen and the widget of a control, found by their object names as any test tool finds them.
// Throw where there is none.
QWidget& windowof(const toolkit::Screen& screen);
QWidget& widgetin(QWidget& window, const std::string& name);
QWidget& widgetof(const toolkit::Control& control);

// Shows the screen, does the act in its window as soon as that is seen, and closes it.
void showwhile(toolkit::Screen& screen, const std::function<void()>& act);

// Opens something that waits, and acts again and again on the window that is then in front.
void walk(const std::function<void()>& open, const std::function<void(QWidget& window)>& act);

// What is done in a window once it is in front and shown.
struct Step {
    std::string window; // its name, "message" for a message
    std::function<void(QWidget&)> act;
};

// Walks with steps that are done one after the other; then all windows that are left are closed. A window that does
// not come fails the test.
void walk(const std::function<void()>& open, const std::vector<Step>& steps);

// Presses the mouse at a place in the window and lets go at another. The press may end the screen, and then nobody lets
// go of anything in it.
void mouse(QWidget& window, QPoint from, QPoint to, bool letgo = true);

// The same at one place of a widget.
void mouse(QWidget& widget, QPoint at);

// What an assistive tool is told: "Role 'name' = value: description states < its labels > what it labels".
std::string told(QWidget& widget);

// The desktop asks the program to end.
void quitbydesktop();

} // namespace brindor::tests
