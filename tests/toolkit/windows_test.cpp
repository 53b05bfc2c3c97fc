#include "toolkit/operations.h"
#include "toolkit/qt/qthost.h"
#include "toolkit/user.h"
#include "windows.h"

#include <QApplication>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <array>
#include <string>

// What only a window has.
namespace brindor::tests {

namespace {

using namespace toolkit;

struct Note : Screen {
    Note()
    {
        name = "note";
        width = 6000;
        height = 4500;
        add(*this, heading, "heading");
        heading.text = "A heading";
        heading.place = {240, 240, 3000, 360};
        add(*this, box, "box");
        box.border = true;
        box.text = "Kinds";
        box.place = {240, 720, 3000, 1200};
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            add(box, kinds[i], indexed("kind", static_cast<int>(i)));
            kinds[i].text = "Kind";
            kinds[i].place = {120, 300 + 360 * static_cast<double>(i), 2700, 360};
        }
        add(*this, ok, "ok");
        ok.text = "Bread & butter";
        ok.place = {240, 2160, 1440, 480};
    }

    Label heading;
    Frame box;
    std::array<OptionButton, 2> kinds;
    Button ok;
};

QScrollArea& areaof(const Screen& screen)
{
    return *windowof(screen).findChild<QScrollArea*>();
}

bool scrolls(const Screen& screen)
{
    return areaof(screen).horizontalScrollBar()->maximum() > 0 || areaof(screen).verticalScrollBar()->maximum() > 0;
}

int topof(const Control& control)
{
    return widgetof(control).mapTo(&windowof(*control.screen), QPoint()).y();
}

void settle()
{
    QCoreApplication::processEvents();
}

class WindowTest : public testing::Test {
protected:
    QtHost host;
    Note note;
};

TEST_F(WindowTest, ATextGrowsAndPushesWhatLiesBelow)
{
    showwhile(note, [this] {
        const int kindtop = topof(note.kinds[0]);
        const int oktop = topof(note.ok);
        const int boxheight = widgetof(note.box).height();
        std::string much;
        for (int i = 0; i < 40; ++i) {
            much += "word ";
        }
        settext(note.heading, much);
        settle();
        const int pushed = topof(note.kinds[0]) - kindtop;
        EXPECT_GT(pushed, 50);
        EXPECT_EQ(topof(note.ok) - oktop, pushed);
        EXPECT_EQ(widgetof(note.box).height(), boxheight);

        settext(note.kinds[0], much);
        settle();
        EXPECT_EQ(topof(note.kinds[0]) - kindtop, pushed);
        const int grown = widgetof(note.box).height() - boxheight;
        EXPECT_GT(grown, 50);
        EXPECT_EQ(topof(note.ok) - oktop, pushed + grown);
        EXPECT_EQ(note.ok.place, (Place{240, 2160, 1440, 480}));
        EXPECT_TRUE(scrolls(note));
    });
}

TEST_F(WindowTest, APictureIsFittedWhereNothingScrolls)
{
    Picture picture;
    add(note, picture, "picture");
    picture.place = {150, 300, 9000, 9000};
    note.scrolls = false;
    showwhile(note, [&] {
        EXPECT_FALSE(scrolls(note));
        const QSize seen = windowof(note).size();
        EXPECT_EQ(widgetof(picture).geometry(), QRect(10, 20, seen.width() - 10, seen.height() - 20));
    });
}

TEST_F(WindowTest, StatesAreShownAndTold)
{
    std::string states;
    note.windowstate = maximised;
    note.resize = [&] { states += std::to_string(note.windowstate); };
    showwhile(note, [&] {
        EXPECT_TRUE(windowof(note).isMaximized());
        windowof(note).showNormal();
        settle();
        windowof(note).showMinimized();
        settle();
    });
    EXPECT_EQ(states.front(), '2');
    EXPECT_EQ(states.substr(states.size() - 2), "01");

    Note again;
    again.windowstate = minimised;
    showwhile(again, [&] { EXPECT_FALSE(windowof(again).isMinimized() || windowof(again).isMaximized()); });
}

TEST_F(WindowTest, TabGoesThroughTheControlsInTheirOrder)
{
    std::array<TextBox, 2> boxes;
    boxes[0].multiline = true;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        add(note, boxes[i], indexed("box", static_cast<int>(i)));
        boxes[i].place = {3600, 240.0 + 900 * static_cast<double>(i), 1200, 600};
    }
    select(note.kinds[1]);
    std::string order;
    showwhile(note, [&] {
        for (int i = 0; i < 5; ++i) {
            order += QApplication::focusWidget()->objectName().toStdString() + ' ';
            QTest::keyClick(windowof(note).windowHandle(), Qt::Key_Tab);
        }
    });
    EXPECT_EQ(order, "ok box(0) box(1) kind(1) ok ");
    EXPECT_EQ(boxes[0].text, "");
}

TEST_F(WindowTest, EscapeAndTheTitleBarMeanNo)
{
    for (const auto& act : std::array<std::function<void(QWidget*)>, 2>{
             [](QWidget* box) { QTest::keyClick(box->windowHandle(), Qt::Key_Escape); },
             [](QWidget* box) { box->close(); }}) {
        QTimer::singleShot(20, [act] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            EXPECT_EQ(box->text(), "One\n<b>two</b>");
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            act(box);
        });
        EXPECT_FALSE(askyesno("One\r\n<b>two</b>", "Title"));
    }
}

TEST_F(WindowTest, WhenTheDesktopQuitsEveryWaitReturns)
{
    Note upper;
    std::string log;
    note.unload = [&] { log += "note unloaded "; };
    upper.unload = [&] { log += "upper unloaded "; };
    upper.name = "upper";
    QTimer::singleShot(20, [&] {
        QTimer::singleShot(20, [&] {
            QTimer::singleShot(20, [] {
                QEvent quit(QEvent::Quit);
                QCoreApplication::sendEvent(qApp, &quit);
            });
            log += askyesno("Sure?", "Title") ? "yes " : "no ";
        });
        showmodal(upper);
        messagebox("nobody sees this");
    });
    showmodal(note);
    EXPECT_TRUE(quitting());
    EXPECT_EQ(log, "no upper unloaded note unloaded ");
}

} // namespace

} // namespace brindor::tests
