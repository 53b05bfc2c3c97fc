#include "story.h"
#include "toolkit/qt/zoom.h"
#include "windows.h"

#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

// What only a window has, and what an assistive tool, and so a person who does not see the window, is told of it.
namespace brindor::tests {

using namespace toolkit;

// The state of the window and its size, and a control's place and width and the size of its letters, all in pixels. The
// frame of the windows here takes 4 pixels, at every zoom.
static void tellplaces(const Act& act)
{
    const QWidget& window = windowof(act.screen);
    const QWidget& widget = widgetof(*act.control);
    std::string told = std::to_string(window.windowState() & ~Qt::WindowActive) + ':';
    for (const int number :
         {window.width(), window.height(), widget.x(), widget.y(), widget.width(), widget.font().pixelSize()}) {
        told += ' ' + std::to_string(number);
    }
    const bool seen = window.screen()->availableGeometry().contains(window.frameGeometry());
    act.screen.note(told + (seen ? "" : " beyond the display"));
}

// Waits for what the window system reports in the meantime.
static std::function<void(const Act&)> state(Qt::WindowState state)
{
    return [state](const Act& act) {
        windowof(act.screen).setWindowState(state);
        QTest::qWait(400);
    };
}

static void enlargemessage(const Act&)
{
    QWidget* box = QApplication::activeModalWidget();
    const int before = box->width();
    QTest::keyClick(box->windowHandle(), Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_NEAR(box->width(), before * 1.1, 6);
    EXPECT_GE(box->height(), box->sizeHint().height());
}

static void lookatmessage(const Act& act)
{
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    act.screen.note(box->text().toStdString() + (box->textFormat() == Qt::PlainText ? "" : " as markup"));
}

static void pressforsomeone(const Act& act)
{
    QAccessibleInterface* about = QAccessible::queryAccessibleInterface(&widgetof(*act.control));
    about->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

const Verbs own = {
    {"tell", [](const Act& act) { act.screen.note(told(widgetof(*act.control))); }},
    {"tellwindow", [](const Act& act) { act.screen.note(told(windowof(act.screen))); }},
    {"tellhalf", [](const Act& act) { act.screen.note(told(*widgetof(*act.control).findChild<QWidget*>())); }},
    {"putonrow", [](const Act& act) { movetop(*act.control, act.screen.target.place.top); }},
    {"pickup", [](const Act& act) { startdrag(act.as<Button>()); }},
    {"putdown", [](const Act& act) { enddrag(act.as<Button>()); }},
    {"pressfor", pressforsomeone},
    {"key",
     [](const Act& act) {
         QTest::keySequence(windowof(act.screen).windowHandle(), QKeySequence(QString::fromStdString(act.more)));
     }},
    {"focus", [](const Act& act) { act.screen.note(QApplication::focusWidget()->objectName().toStdString()); }},
    {"setfocus", [](const Act& act) { widgetof(*act.control).setFocus(); }},
    {"places", tellplaces},
    {"restore", state(Qt::WindowNoState)},
    {"minimise", state(Qt::WindowMinimized)},
    {"maximise", state(Qt::WindowMaximized)},
    {"enlarge", enlargemessage},
    {"look", lookatmessage},
    {"closemessage", [](const Act&) { QApplication::activeModalWidget()->close(); }},
    {"escapemessage",
     [](const Act&) { QTest::keyClick(QApplication::activeModalWidget()->windowHandle(), Qt::Key_Escape); }},
    {"quit", [](const Act&) { quitbydesktop(); }},
};

static void asks(Everything& screen)
{
    screen.go.click = [&screen] { screen.note(askyesno("One\r\n<b>two</b>", "Title") ? "yes" : "no"); };
}

const Story stories[] = {
    {"AnAssistiveToolIsToldAFormerState", [](Everything& all) { all.bars[0].tooltip = "Drag it"; },
     "pickup bar(0); tell bar(0); putdown bar(0); putonrow bar(1); tell target; putonrow bar(0); tell bar(0);"
     " tell target; disable go; tell go; hide list; tell list; tellhalf spin",
     "Button 'One': Picked up. Drag it, StaticText 'Egypt': Holds Two., Button 'One': On the row Egypt. Drag it,"
     " StaticText 'Egypt': Holds One., Button 'Go & see' disabled, List '' invisible, Button 'Salt & pepper up'"},
    {"AScreenInFrontIsNoDialogOrAPressForSomeoneIsNotThatOfTheMouse",
     [](Everything& all) {
         all.goopens();
         all.above->options[0].press = [&all] { all.note("pressed"); };
     },
     "click go; second: tellwindow; pressfor option(0); close; all: close",
     "second.resized to 9000, second.Dialog 'second' modal, pressed, second.unloaded, goes on"},
    {"TabGoesNotThroughTheControlsInTheirOrder",
     {},
     "select option(1); focus; key Tab; focus; key Tab; focus; key Tab; focus; key Tab; focus; say lines",
     "option(1), go, line, line left, lines, lines left, option(1), list, lines="},
    {"TheFirstFocusIsOnAnOptionThatAnswersASpace",
     [](Everything& all) {
         hide(all.go);
         hide(all.line);
         hide(all.lines);
     },
     "focus", "list"},
    {"TheCurrentLineIsLostWhenTheListIsRebuilt", [](Everything& all) { all.pickpushesup(); },
     "setfocus list; key Down; key Down; key Space; key Return", "two up, one up"},
    {"TheArrowsInANameListGoFromAnotherLineThanTheOneShown",
     [](Everything& all) { all.go.click = [&all] { showline(all.combo, 1); }; },
     "setfocus combo; key Down; click go; setfocus combo; key Down; key Up", "combo 0, combo 2, combo 1"},
    {"ADragOverManyLinesPicksOne", {}, "press list 0; letgo list 2; press list 1; letgo list 1", "list 1"},
    {"EscapeOrTheTitleBarSaysYesOrATextIsMarkup", asks,
     "click go; message: look; escapemessage; all: click go; message: closemessage; all: say go",
     "One\n<b>two</b>, no, no, go=Go & see"},
    {"AWaitGoesOnWhenTheDesktopQuits",
     [](Everything& all) {
         all.goopens();
         asks(*all.above);
     },
     "click go; second: click go; message: quit", "second.resized to 9000, second.no, second.unloaded, goes on"},
    {"AKeyZoomsPlacesFontsAndWindowNotAlike",
     {},
     "places line; key Ctrl++; places line; key Ctrl+-; key Ctrl+-; places line; restore",
     "0: 596 596 110 37 300 16, 0: 656 656 121 41 330 17, 0: 542 542 100 34 273 14"},
    {"AnOpenMessageKeepsItsSizeOrIsCutOff",
     [](Everything& all) { all.go.click = [] { messagebox("A text of some length that says what is to be known."); }; },
     "click go; message: enlarge; closemessage", ""},
    {"AWindowIsLargerThanTheDisplayOrItsRecordIsCutToIt", [](Everything& all) { all.width = all.height = 30000; },
     "places line; key Ctrl++; places line", "0: 796 796 110 37 300 16, 0: 796 796 121 41 330 17"},
    {"AMaximisedWindowIsNotFilledOrComesBackOtherwise", [](Everything& all) { all.height = 4500; },
     "maximise; places line; key Ctrl++; restore; places line",
     "max resized to 9000, max resized to 9000, 2: 796 796 169 124 401 21, resized to 9000, 0: 656 326 131 41 330 17"},
    {"ARememberedStateIsNotShownOrAnotherNotTold", [](Everything& all) { all.windowstate = maximised; },
     "places line; restore; minimise", "2: 796 796 169 124 401 21, resized to 9000, min resized to 9000"},
    {"AWindowOpensMinimised", [](Everything& all) { all.windowstate = minimised; }, "places line",
     "0: 596 596 110 37 300 16"},
};

class WindowStory : public testing::TestWithParam<Story> {};

INSTANTIATE_TEST_SUITE_P(Catches, WindowStory, testing::ValuesIn(stories),
                         [](const auto& story) { return std::string(story.param.fault); });

TEST_P(WindowStory, Story)
{
    check(GetParam(), own);
    qt::setbasezoom(qt::Zoom(1));
}

class WindowTest : public testing::Test {
protected:
    static int topof(const Control& control)
    {
        return widgetof(control).mapTo(&windowof(*control.screen), QPoint()).y();
    }

    bool scrolls() const
    {
        const auto& area = *windowof(all).findChild<QScrollArea*>();
        return area.horizontalScrollBar()->maximum() > 0 || area.verticalScrollBar()->maximum() > 0;
    }

    QtHost host;
    std::string log;
    Everything all{"all", log, nullptr};
};

TEST_F(WindowTest, ALongTextIsCutOffOrCoversWhatLiesBelow)
{
    showwhile(all, [this] {
        const std::array before = {topof(all.line), topof(all.options[1]), widgetof(all.box).height()};
        const std::string words = QStringLiteral("word ").repeated(60).toStdString();
        settext(all.go, words);
        settext(all.inside, words);
        QCoreApplication::processEvents();
        const int pushed = topof(all.line) - before[0];
        EXPECT_GT(pushed, 20);
        const int grown = widgetof(all.box).height() - before[2];
        EXPECT_GT(grown, 50);
        EXPECT_GE(topof(all.options[1]), before[1] + std::max(pushed, grown));
        EXPECT_EQ(all.options[1].place.height, 360);
        EXPECT_TRUE(scrolls());
    });
}

TEST_F(WindowTest, APictureIsCutWhereNothingScrolls)
{
    Picture picture;
    add(all, picture, "picture");
    picture.place = {150, 300, 9900, 9900};
    all.scrolls = false;
    showwhile(all, [&] {
        EXPECT_FALSE(scrolls());
        const QSize seen = windowof(all).size();
        EXPECT_EQ(widgetof(picture).geometry(), QRect(10, 20, seen.width() - 10, seen.height() - 20));
    });
}

} // namespace brindor::tests
