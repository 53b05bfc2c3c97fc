#include "setup/setup.h"

#include "setup/curstats.h"
#include "support/gametest.h"

namespace brindor {

using namespace toolkit;
using SetupScreen = brindor::Setup; // Setup is a name of the test framework's

class SetupTest : public tests::GameTest {
protected:
    // A look sees the number of questions, the log's level as the screen and as the settings have it, and the selected
    // lines.
    std::string visit(const std::string& story)
    {
        return GameTest::visit(
            "setup", [this] { showsetup([this] { ++choosers; }); }, story,
            [](Screen& screen) {
                const auto& s = static_cast<SetupScreen&>(screen);
                std::string text = s.nquestion.text + '|';
                for (const OptionButton& option : s.option1) {
                    text += option.selected ? option.text : "";
                }
                text += '|' + std::to_string(logstatus) + '|';
                for (std::size_t line = 0; line < s.list1.lines.size(); ++line) {
                    EXPECT_EQ(s.list1.lines[line], typenames[line + 1]);
                    text += s.list1.selected[line] ? '+' : '.';
                }
                EXPECT_EQ(s.cmdedit.font.points, 8);
                return text;
            });
    }

    int choosers = 0;
};

TEST_F(SetupTest, ShowsTheSettingsAndChangesThemAtOnceOrAtItsEnd)
{
    const char* levels[] = {"7|Off|0|", "8|All|1|", "9|Only incorrect|2|"};
    typeenabled[2] = 0;
    for (std::int16_t level = 0; level < 3; ++level) {
        logstatus = level;
        nquestion = static_cast<std::int16_t>(level + 7);
        EXPECT_EQ(visit("?; tmindif=5"),
                  std::string(levels[level]) + "+.+++++++++++\n!tmindif=5\n"); // the difficulty is out of reach
    }
    typeenabled[0] = 7;
    mindif = "7"; // opening makes it 1
    maxdif = 9;
    EXPECT_EQ(visit("nquestion=7; UpDown1+; Option1(0); List1#1; List1#0; ?; Option1(2); cmdEdit; nquestion=3; "
                    "?; esc"),
              "8|Off|0|.++++++++++++\n3|Only incorrect|2|.++++++++++++\n*");
    EXPECT_EQ(choosers, 1);
    for (int line = 1; line < 13; ++line) {
        EXPECT_EQ(typeenabled[static_cast<std::size_t>(line) + 1], -1);
        visit("List1#" + std::to_string(line));
    }
    const std::string file =
        tests::contentof("bdq.INI"); // there is no way to cancel, and no type at all is not refused
    EXPECT_EQ(file.substr(0, 18), "1 9 3 2\r\n0 8 8 8\r\n");
    EXPECT_TRUE(file.ends_with("\r\n7\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n"));
}

// What is typed, what it becomes at once, and when the focus leaves the field (or the screen closes).
TEST_F(SetupTest, TheNumberOfQuestionsAsTypedAndAsStepped)
{
    const std::string rest = "|All|1|+++++++++++++\n";
    for (const std::string& row :
         tests::split("0,1,1; 25,10,10; -3,1,1; ,,1; -,-,1; abc,abc,1; 3.5,3.5,4; 08,8,8; 6x,6x,6; 1e9,1e9,10", "; ")) {
        const std::vector<std::string> cells = tests::split(row, ",");
        EXPECT_EQ(visit("nquestion=" + cells[0] + "; ?; List1; ?"), cells[1] + rest + cells[2] + rest);
        nquestion = 5;
        visit("nquestion=" + cells[0]);
        EXPECT_EQ(std::to_string(nquestion), cells[2]) << row;
    }
    nquestion = 8;
    EXPECT_EQ(visit("UpDown1+; UpDown1+; UpDown1+; ?; UpDown1-; ?"), "10" + rest + '9' + rest);
    host.persons["setup"] = [](Screen& screen) { // only a field with the focus is left
        auto& field = static_cast<SetupScreen&>(screen).nquestion;
        EXPECT_FALSE(userleave(field));
        usertype(field, "x");
        EXPECT_TRUE(userleave(field));
        EXPECT_FALSE(userleave(field));
        EXPECT_EQ(field.text, "1");
        userclose(screen);
    };
    showsetup([] {});
}

TEST_F(SetupTest, TheStatisticsOfTheTimeline)
{
    std::string lines;
    host.persons["curStats"] = [&lines](Screen& screen) {
        for (const Control* control : screen.controls) {
            lines += control->text + '|';
        }
        EXPECT_TRUE(userreturn(screen));
    };
    showstatistics();
    tests::setnumbered(3, 2);
    tests::setcatalogues({"a"}, {"b", "c"}, {}, {"d", "e", "f"});
    curfile = "Modern.bd3";
    mindate = -44;
    maxdate = 0;
    showstatistics();
    EXPECT_EQ(lines, "|0 people|0 events|0 factions|0 occupations|0 groups|0 nations|"
                     "Current date range  9999 to -25000|OK|"
                     "Modern.bd3|3 people|2 events|1 factions|2 occupations|0 groups|3 nations|"
                     "Current date range -44 to  0|OK|");
}

} // namespace brindor
