#include "editors/bdqedit.h"
#include "editors/eentry.h"
#include "editors/imgdisp.h"
#include "editors/pentry.h"
#include "frame/game.h"
#include "frame/mainscreen.h"
#include "setup/curstats.h"
#include "setup/setup.h"
#include "support/gametest.h"

namespace brindor {

using namespace toolkit;

// What all screens have in common.
class Screens : public tests::GameTest {
protected:
    // The caption, the letters of the buttons ("*" behind that of Return), and of each new tip and of what assistive
    // tools are told the first word; "=" for a label that names another control.
    static std::string describe(const Screen& screen)
    {
        std::string text = screen.name + " \"" + screen.caption + "\" " + (screen.escapecloses ? "esc " : "");
        std::string tip;
        for (const Control* control : screen.controls) {
            if (control->kind == Kind::button && static_cast<const Button*>(control)->accesskey != 0) {
                text += static_cast<const Button*>(control)->accesskey;
                text += control == screen.defaultbutton ? "*" : "";
            }
            text += (control->tooltip == tip ? "" : '{' + tests::split(control->tooltip + ' ', " ").front() + '}') +
                    (control->says.empty() ? "" : '<' + tests::split(control->says, " ").front() + '>');
            text += control->kind == Kind::label && static_cast<const Label*>(control)->names != nullptr ? "=" : "";
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
        host.persons[name] = [&](Screen& screen) {
            text += describe(screen);
            EXPECT_TRUE(screen.width <= 1024 * 15 && screen.height <= 700 * 15) << screen.name;
            EXPECT_EQ(screen.left * 2 + screen.width, host.display.width) << screen.name;
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
                    "qsort \"Quorvel Mind Tourney\" =<Items>HD\n"
                    "showscor \"Quorvel Mind Tourney Scores\" esc =<Result>o*{Click}{}\n"
                    "qmatch \"Match 'em\" {Click}{Drag}{}HS{Click}D\n"
                    "PEntry \"People Entry\" esc =<Name>=<Description>=<Date><Type>=<Date><Type>"
                    "=<Faction>=<Occupation>PNwDO*\n"
                    "eEntry \"Events Entry\" esc =<Name>=<Description>=<Date><Type>=<Date><Type>"
                    "=<Group>=<Nation>=<Nation>=<Picture>=<Picture><Picture>{Click}<Picture>P{}NwDO*\n"
                    "ImgDisp \"\" esc <Picture>\n"
                    "curStats \"Current Timeline Statistics\" esc O*\n"
                    "setup \"Brindor History Trivia Game Setup\" esc =<Number><Number>={Colored}<Kinds>{}"
                    "{No}{All}{Only}{}=<Minimum><Minimum>=<Maximum><Maximum>V{Change}O*{Click}\n"
                    "bdqedit \" Choose \" esc PESO*\n"
                    "main \"Brindor History Trivia Game\" P*{Play}S{Conditions}A{}C{View}Q{}\n");
}

} // namespace brindor
