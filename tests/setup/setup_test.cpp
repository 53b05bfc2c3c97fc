#include "setup/setup.h"

#include "frame/services/settings.h"
#include "questions/question.h"
#include "support/gametest.h"

#include <algorithm>

namespace brindor {

using namespace toolkit;
using SetupScreen = brindor::Setup; // Setup is a name of the test framework's
using tests::contentof;
using tests::find;

class SetupTest : public tests::GameTest {
protected:
    // Opens the screen, lets `act` do something on it, and closes it from its title bar.
    void visit(const std::function<void(SetupScreen&)>& act)
    {
        host.persons["setup"] = [&act](Screen& screen) {
            act(static_cast<SetupScreen&>(screen));
            userclose(screen);
        };
        showsetup([this] { ++choosers; });
    }

    int choosers = 0;
};

TEST_F(SetupTest, WhatItShows)
{
    brindor::nquestion = 10;
    logstatus = 2;
    typeenabled[2] = 0;
    visit([this](SetupScreen& s) {
        EXPECT_EQ(s.caption, "Brindor History Trivia Game Setup");
        EXPECT_EQ(s.nquestion.text, "10");
        EXPECT_TRUE(find<OptionButton>(s, "Option1(2)").selected);
        EXPECT_EQ(s.list1.lines, std::vector<std::string>(typenames.begin() + 1, typenames.begin() + 14));
        for (std::size_t line = 0; line < 13; ++line) {
            EXPECT_EQ(s.list1.selected[line], line != 1) << line;
        }
        EXPECT_FALSE(s.framediff.visible);
        EXPECT_FALSE(usertype(s.tmindif, "5")); // out of a person's reach
        EXPECT_EQ(s.cmdedit.text, "View/Select");
        EXPECT_EQ(s.cmdedit.font.points, 8);
        EXPECT_EQ(s.left, (host.display.width - s.width) * 0.5);
        EXPECT_EQ(s.top, (host.display.height - s.height) * 0.5);
        EXPECT_LE(s.width, 1024 * 15);
        EXPECT_LE(s.height, 700 * 15);
    });
    EXPECT_EQ(logstatus, 2);
}

TEST_F(SetupTest, TheNumberOfQuestionsAsTyped)
{
    const struct {
        const char* typed;
        const char* atonce;
        const char* afterwards;
        std::int16_t kept;
    } cases[] = {{"7", "7", "7", 7},
                 {"0", "1", "1", 1},
                 {"25", "10", "10", 10},
                 {"-3", "1", "1", 1},
                 {"", "", "1", 1},
                 {"-", "-", "1", 1},
                 {"abc", "abc", "1", 1},
                 {"3.5", "3.5", "4", 4},
                 {"08", "8", "8", 8},
                 {" 6", " 6", "6", 6},
                 {"4x", "4x", "4", 4},
                 {"1e9", "1e9", "10", 10},
                 {"99999999999999999999", "10", "10", 10}};
    for (const auto& c : cases) {
        visit([&c](SetupScreen& s) {
            EXPECT_TRUE(usertype(s.nquestion, c.typed));
            EXPECT_EQ(s.nquestion.text, c.atonce) << c.typed;
            userfocus(s.list1);
            EXPECT_EQ(s.nquestion.text, c.afterwards) << c.typed;
        });
        EXPECT_EQ(brindor::nquestion, c.kept) << c.typed;
        brindor::nquestion = 5;
        visit([&c](SetupScreen& s) { usertype(s.nquestion, c.typed); }); // closed with the focus still in the field
        EXPECT_EQ(brindor::nquestion, c.kept) << c.typed;
    }
}

TEST_F(SetupTest, WhatItsControlsDo)
{
    visit([this](SetupScreen& s) {
        std::string seen;
        for (const int step : {1, 1, 1, 1, 1, 1, -1, -8, -1}) {
            userstep(s.updown1, step);
            seen += s.nquestion.text + ' ';
        }
        EXPECT_EQ(seen, "6 7 8 9 10 10 9 1 1 ");
        for (const auto status : std::initializer_list<std::int16_t>{0, 2, 1}) {
            userclick(s.option1[static_cast<std::size_t>(status)]);
            EXPECT_EQ(logstatus, status); // at once
        }
        userclick(s.cmdedit);
        EXPECT_EQ(choosers, 1);
        usertype(s.nquestion, "3");
        EXPECT_TRUE(userescape(s));
    });
    EXPECT_EQ(brindor::nquestion, 3); // there is no way to cancel
}

TEST_F(SetupTest, ATypeChosenAlone)
{
    typeenabled[0] = 7;
    typeenabled[5] = 1;
    visit([](SetupScreen& s) {
        for (std::int16_t line = 0; line < 13; ++line) {
            if (line != 4) {
                userpick(s.list1, line);
            }
        }
        EXPECT_EQ(typeenabled[1], -1); // not before the screen closes
    });
    EXPECT_EQ(typeenabled, (std::array<std::int16_t, 15>{7, 0, 0, 0, 0, -1}));
    visit([](SetupScreen& s) { userpick(s.list1, 4); });
    EXPECT_EQ(typeenabled, (std::array<std::int16_t, 15>{7})); // no type at all is not refused here
}

// Opening and closing changes nothing in the file but the lowest difficulty and the form of the flags.
TEST_F(SetupTest, TheSettingsFileOverOpenAndClose)
{
    const std::string rows = "0 2 0 1 0\r\n12648384 16777088 33023 16744576 0\r\n9001 9002 9004 9003 9005\r\n"
                             "12001 12002 12004 12003 12005\r\n"
                             "0 7 -3 0 0\r\n6 7 8 9 10\r\n-1 0 3 4 5\r\n1 2 3 4 32767\r\n";
    tests::writefile("bdq.INI", "7 9 10 2\r\n2 1 2 3\r\nMY TITLE.BMP\r\n" + rows +
                                    "5\r\n1\r\n0\r\n2\r\n0\r\n-1\r\n0\r\n-1\r\n0\r\n-1\r\n0\r\n-1\r\n0\r\n300\r\n");
    readsettings();
    visit([](SetupScreen& s) { EXPECT_EQ(s.tmindif.text + s.tmaxdif.text, "19"); });
    const std::string content = contentof("bdq.INI");
    EXPECT_EQ(content, "1 9 10 2\r\n2 8 8 8\r\nMY TITLE.BMP\r\n" + rows +
                           "5\r\n-1\r\n0\r\n-1\r\n0\r\n-1\r\n0\r\n-1\r\n0\r\n-1\r\n0\r\n-1\r\n0\r\n-1\r\n");
    EXPECT_EQ(std::count(content.begin(), content.end(), '\n'), 25);
}

} // namespace brindor
