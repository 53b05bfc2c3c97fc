#include "editors/bdqedit.h"
#include "editors/eentry.h"
#include "editors/imgdisp.h"
#include "editors/pentry.h"
#include "frame/game.h"
#include "frame/mainscreen.h"
#include "setup/curstats.h"
#include "setup/setup.h"
#include "support/gametest.h"
#include "support/timelines.h"

namespace brindor {

using namespace toolkit;

// What all screens have in common.
class Screens : public tests::GameTest {
protected:
    // The caption, the letters of the buttons ("*" behind that of Return), the tips, what assistive tools tell.
    static std::string describe(const Screen& screen)
    {
        std::string text = screen.name + " \"" + screen.caption + "\" " + (screen.escapecloses ? "esc " : "");
        std::string tip;
        for (const Control* control : screen.controls) {
            if (control->kind == Kind::button && static_cast<const Button*>(control)->accesskey != 0) {
                text += static_cast<const Button*>(control)->accesskey;
                text += control == screen.defaultbutton ? "*" : "";
            }
            text += (control->tooltip == tip ? "" : '{' + control->tooltip + '}') +
                    (control->says.empty() ? "" : '<' + control->says + '>');
            tip = control->tooltip;
        }
        return text + '\n';
    }

    // Within their screen (the quiz counts its frame as inside), and none on another.
    static void expectapart(const Screen& screen)
    {
        const Size frame = screen.name == "main" ? framesize() : Size{};
        for (const Control* one : screen.controls) {
            const Place& a = one->place;
            const bool inside = one->container != nullptr;
            const double width = inside ? one->container->place.width : screen.width - frame.width;
            const double height = inside ? one->container->place.height : screen.height - frame.height;
            EXPECT_TRUE(a.left >= 0 && a.top >= 0 && a.left + a.width <= width && a.top + a.height <= height)
                << screen.name << ' ' << one->name;
            for (const Control* other : screen.controls) {
                const Place& b = other->place;
                EXPECT_TRUE(one == other || !one->visible || !other->visible || one->container != other->container ||
                            a.left + a.width <= b.left || b.left + b.width <= a.left || a.top + a.height <= b.top ||
                            b.top + b.height <= a.top)
                    << screen.name << ' ' << one->name << ' ' << other->name;
            }
        }
    }
};

TEST_F(Screens, TellTheirLettersAndTipsAndNoControlLiesOnAnother)
{
    std::string text;
    tests::setnumbered(20, 20);
    events[0].imagename = viewimagename = "a.png";
    host.pictures["a.png"] = 0;
    for (const char* name : {"main", "setup", "bdqedit", "curStats", "PEntry", "eEntry", "ImgDisp", "mchoice", "qsort",
                             "qmatch", "showscor"}) {
        host.persons[name] = [&text](Screen& screen) {
            text += describe(screen);
            expectapart(screen);
            if (screen.name == "qsort") {
                userclick(tests::find<Button>(screen, "Command1"));
            } else if (screen.name == "main") {
                for (const double width : {4000.0, 30000.0}) { // a column of buttons, and a row
                    userresize(screen, width, 9000, normal);
                    expectapart(screen);
                }
            }
            userclose(screen);
        };
    }
    for (const auto type : std::initializer_list<std::int16_t>{1, 6, 10}) {
        showquestion(type);
    }
    showpeople();
    showevents();
    viewimage("a.png");
    showstatistics();
    showsetup([] {});
    showchooser([] {});
    MainScreen screen(folder.path().string());
    showmodal(screen);
    EXPECT_EQ(text, "mchoice \"Quorvel Mind Tourney\" hs\n"
                    "qsort \"Quorvel Mind Tourney\" <Items to sort>HD\n"
                    "showscor \"Quorvel Mind Tourney Scores\" esc <Result>o*{Click here when  ready to proceed}{}\n"
                    "qmatch \"Match 'em\" {Click and drag this item to its description, below}{Drag one of the colored "
                    "bars to this description}{}HS{Click here when you are ready to proceed}D\n"
                    "PEntry \"People Entry\" esc <Name><Description><Date 1><Type of Date 1><Date 2><Type of Date 2>"
                    "<Faction><Occupation>PNwDO*\n"
                    "eEntry \"Events Entry\" esc <Name><Description><Date 1><Type of Date 1><Date 2><Type of Date 2>"
                    "<Group><Nation 1><Nation 2><Picture><Picture width><Picture height>{Click to see the picture in a "
                    "window of its own}<Picture of the event>P{}NwDO*\n"
                    "ImgDisp \"\" esc <Picture>\n"
                    "curStats \"Current Timeline Statistics\" esc O*\n"
                    "setup \"Brindor History Trivia Game Setup\" esc <Number of questions per game><Number of "
                    "questions per game>{Colored items are selected}<Kinds of question>{}{No logging takes place}{All "
                    "questions and incorrect answers are sent to log file}{Only wrong answers are sent to log file}{}"
                    "<Minimum><Minimum><Maximum><Maximum>V{Change item data}O*{Click here to continue}\n"
                    "bdqedit \" Choose \" esc PESO*\n"
                    "main \"Brindor History Trivia Game\" P*{Play the game}S{Conditions for the game}A{}C{View Quorvel "
                    "Software Catalog}Q{}\n");
}

} // namespace brindor
