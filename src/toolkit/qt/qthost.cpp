#include "toolkit/qt/qthost.h"

#include "toolkit/qt/messages.h"
#include "toolkit/qt/pictures.h"
#include "toolkit/qt/screenwindow.h"
#include "toolkit/qt/startviewer.h"
#include "toolkit/qt/twips.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QScreen>

#include <algorithm>

namespace brindor::toolkit {

QtHost::QtHost() : before_(sethost(this))
{
    qApp->installEventFilter(this);
}

QtHost::~QtHost()
{
    sethost(before_);
}

qt::ScreenWindow* QtHost::windowof(const Screen& screen) const
{
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [&screen](const auto& window) { return &window->screen() == &screen; });
    return found == windows_.end() ? nullptr : found->get();
}

qt::ScreenWindow* QtHost::top() const
{
    const auto seen =
        std::find_if(windows_.rbegin(), windows_.rend(), [](const auto& window) { return window->isVisible(); });
    return seen == windows_.rend() ? nullptr : seen->get();
}

void QtHost::create(Screen& screen)
{
    framesize();
    windows_.push_back(std::make_unique<qt::ScreenWindow>(screen, top()));
}

void QtHost::show(Screen& screen)
{
    if (qt::ScreenWindow* window = windowof(screen); window != nullptr && !quitting_) {
        window->present();
    }
}

void QtHost::wait(Screen& screen)
{
    qt::ScreenWindow* window = windowof(screen);
    if (window == nullptr || quitting_) {
        return;
    }
    window->run();
    quitting_ = quitting_ || !screen.closed; // every event loop of the application was ended
}

void QtHost::drop(Screen& screen)
{
    std::erase_if(windows_, [&screen](const auto& window) { return &window->screen() == &screen; });
    activatetop();
}

void QtHost::update(Control& control)
{
    if (qt::ScreenWindow* window = windowof(*control.screen)) {
        window->refresh(control);
    }
}

void QtHost::update(Screen& screen)
{
    if (qt::ScreenWindow* window = windowof(screen)) {
        window->refreshscreen();
    }
}

void QtHost::focus(Control& control)
{
    if (qt::ScreenWindow* window = windowof(*control.screen)) {
        window->focus(control);
    }
}

bool QtHost::message(const Message& message)
{
    const bool answer = !quitting_ && qt::showmessage(message, top());
    activatetop();
    return answer;
}

// Not every window system gives the keyboard back by itself.
void QtHost::activatetop()
{
    if (qt::ScreenWindow* window = top()) {
        window->activateWindow();
    }
}

Size QtHost::displaysize()
{
    const QScreen* display = top() == nullptr ? QGuiApplication::primaryScreen() : top()->QWidget::screen();
    const QSize size = display->geometry().size();
    return {size.width() * qt::twipsinpixel, size.height() * qt::twipsinpixel};
}

Size QtHost::framesize()
{
    if (!windows_.empty()) {
        qt::learnframe(*windows_.front());
    }
    const QMargins margins = qt::framemargins();
    return {(margins.left() + margins.right()) * qt::twipsinpixel,
            (margins.top() + margins.bottom()) * qt::twipsinpixel};
}

LoadedPicture QtHost::loadpicture(const std::string& file)
{
    return qt::loadpicturefile(file);
}

void QtHost::startviewer(const std::string& file)
{
    qt::startviewer(file);
}

bool QtHost::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != qApp || event->type() != QEvent::Quit) {
        return false;
    }
    quit();
    return true;
}

// The calls that opened the screens return one after the other, and the program ends as if a person had closed them.
void QtHost::quit()
{
    quitting_ = true;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* box = qobject_cast<QDialog*>(widget)) {
            box->reject();
        }
    }
    for (const auto& window : windows_) {
        window->endrun();
    }
}

} // namespace brindor::toolkit
