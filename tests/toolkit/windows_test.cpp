#include "story.h"
#include "toolkit/qt/qthost.h"
#include "windows.h"

#include <QAccessible>
#include <QApplication>
#include <QListWidget>
#include <QMessageBox>
#include <QMetaEnum>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <array>

// What only a window has, and what an assistive tool, and so a person who does not see the window, is told of it.
namespace brindor::tests {

namespace {

using namespace toolkit;

// "Role 'name' = value: description states < its labels > what it labels"
std::string told(QObject& widget)
{
    QAccessibleInterface& about = *QAccessible::queryAccessibleInterface(&widget);
    const auto add = [](const char* mark, const QString& text) {
        return text.isEmpty() ? "" : mark + text.toStdString();
    };
    const auto related = [&about](QAccessible::Relation kind) {
        QString names;
        for (const auto& [other, relation] : about.relations(kind)) {
            names += other->text(QAccessible::Name);
        }
        return names;
    };
    const QAccessible::State state = about.state();
    return QMetaEnum::fromType<QAccessible::Role>().valueToKey(about.role()) +
           (" '" + about.text(QAccessible::Name).toStdString()) + '\'' + add(" = ", about.text(QAccessible::Value)) +
           add(": ", about.text(QAccessible::Description)) + (state.checked ? " checked" : "") +
           (state.disabled ? " disabled" : "") + (state.invisible ? " invisible" : "") + (state.modal ? " modal" : "") +
           add(" < ", related(QAccessible::Label)) + add(" > ", related(QAccessible::Labelled));
}

void lookatmessage(const Act& act)
{
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    act.screen.note(box->text().toStdString() + (box->textFormat() == Qt::PlainText ? "" : " as markup"));
}

void pressforsomeone(const Act& act)
{
    QAccessibleInterface* about = QAccessible::queryAccessibleInterface(&widgetof(*act.control));
    about->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

const Verbs own = {
    {"tell", [](const Act& act) { act.screen.note(told(widgetof(*act.control))); }},
    {"tellwindow", [](const Act& act) { act.screen.note(told(windowof(act.screen))); }},
    {"tellhalf", [](const Act& act) { act.screen.note(told(*widgetof(*act.control).children().at(0))); }},
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
    {"look", lookatmessage},
    {"closemessage", [](const Act&) { QApplication::activeModalWidget()->close(); }},
    {"escapemessage",
     [](const Act&) { QTest::keyClick(QApplication::activeModalWidget()->windowHandle(), Qt::Key_Escape); }},
    {"quit", [](const Act&) { quitbydesktop(); }},
};

void asks(Everything& screen)
{
    screen.go.click = [&screen] { screen.note(askyesno("One\r\n<b>two</b>", "Title") ? "yes" : "no"); };
}

const Story stories[] = {
    {"AnAssistiveToolIsToldNoState",
     [](Everything& all) {
         all.list.says = "Lines";
         all.combo.text = "Rome";
     },
     "tell go; disable go; tell go; settext line 13; tell line; tell linelabel; tell combo; tell box; tell inside;"
     " select inside; tell inside; tell list; hide list; tell list; tellhalf spin; tellwindow",
     "Button 'Go & see', Button 'Go & see' disabled, line=13, EditableText 'Salt & pepper' = 13 < Salt & pepper,"
     " StaticText 'Salt & pepper' > Salt & pepper, ComboBox 'Name' = Rome < Name, Grouping 'Kinds' > Inside,"
     " RadioButton 'Inside' < Kinds, inside, RadioButton 'Inside' checked < Kinds, List 'Lines' = Lines,"
     " List 'Lines' = Lines invisible, Button 'Salt & pepper up', Window 'all'"},
    {"AnAssistiveToolIsNotToldWhereABarLies", [](Everything& all) { all.bars[0].tooltip = "Drag it"; },
     "tell bar(0); tell target; pickup bar(0); tell bar(0); putdown bar(0); putonrow bar(1); tell target;"
     " putonrow bar(0); tell bar(0); tell target",
     "Button 'One': Drag it, StaticText 'Egypt': Empty., Button 'One': Picked up. Drag it,"
     " StaticText 'Egypt': Holds Two., Button 'One': On the row Egypt. Drag it,"
     " StaticText 'Egypt': Holds One."}, // which lies on top
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
    {"TheCurrentLineIsLostWhenTheListIsRebuilt",
     [](Everything& all) {
         all.list.pick = [&all](std::int16_t line) {
             all.note("list " + std::to_string(line));
             clearlist(all.list);
             for (const char* text : {"a", "b", "c"}) {
                 additem(all.list, text);
             }
         };
     },
     "setfocus list; key Down; key Down; key Space; key Return", "list 2, list 2"},
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
};

class WindowStory : public testing::TestWithParam<Story> {};

INSTANTIATE_TEST_SUITE_P(Catches, WindowStory, testing::ValuesIn(stories),
                         [](const auto& story) { return std::string(story.param.fault); });

TEST_P(WindowStory, Story)
{
    check(GetParam(), own);
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
        const std::array<int, 3> before = {topof(all.line), topof(all.options[1]), widgetof(all.box).height()};
        std::string words;
        for (int i = 0; i < 60; ++i) {
            words += "word ";
        }
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

TEST_F(WindowTest, AStateOfTheWindowIsNotShownOrNotTold)
{
    std::string states;
    all.windowstate = maximised;
    all.resize = [&] { states += std::to_string(all.windowstate); };
    showwhile(all, [&] {
        EXPECT_TRUE(windowof(all).isMaximized());
        windowof(all).showNormal();
        QCoreApplication::processEvents();
        windowof(all).showMinimized();
        QCoreApplication::processEvents();
    });
    EXPECT_EQ(states.front(), '2');
    EXPECT_EQ(states.substr(states.size() - 2), "01");
    Everything again("all", log, nullptr);
    again.windowstate = minimised;
    showwhile(again, [&] { EXPECT_EQ(windowof(again).windowState() & ~Qt::WindowActive, Qt::WindowNoState); });
}

} // namespace

} // namespace brindor::tests
