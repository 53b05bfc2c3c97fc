#include "authoring/fairness.h"
#include "tools/sample.h"

namespace brindor::authoring {

using namespace tests;
using FairnessTest = ProgramTest;

namespace {

// Of 100 questions of a kind about the same five people, or events; the first two of them are given where not empty.
Fairness drawn(std::int16_t type, const std::string& first, const std::string& second)
{
    std::string rows;
    for (int i = 0; i < 5; ++i) {
        const std::string number = std::to_string(i);
        const std::string plain = number + "000,," + number + "050,,D" + number + ",,F" + number + ",O" + number;
        const std::string given = i == 0 ? first : i == 1 ? second : "";
        rows += 'N' + number + ',' + (given.empty() ? plain : given) + '\n';
    }
    fs::create_directory("x");
    const std::string columns = "name,date1,kind1,date2,kind2,desc1,desc2,";
    writefile("x/people.csv", columns + "faction,occupation,source\n" + rows);
    writefile("x/events.csv", columns + "group,nation1,nation2\n" + rows);
    Findings findings;
    EXPECT_TRUE(loadtarget("x", findings)) << report(findings);
    return fairnessof(type, 100, 1);
}

} // namespace

TEST_F(FairnessTest, CountsQuestionsWithTwoAnswersByTheRules)
{
    const struct {
        std::int16_t type;
        std::string first;
        std::string second;
        int clear; // about: of five items one of four is asked about, so a pair of them is met in 40 of 100
        int arguable;
    } cases[] = {
        {1, "", "", 0, 0},
        {1, "100,ca.,150,,D1,,F1,O1", "110,,160,ca.,D2,,F2,O2", 40, 0},
        {1, "100,ca.,150,,D1,,F1,O1", "110,,160,,D2,,F2,O2", 0, 40},
        {1, "100,,150,,D1,,F1,O1", "110,,160,,D2,,F2,O2", 0, 0},
        {1, "100,ca.,150,,D1,,F1,O1", "110,,161,,D2,,F2,O2", 0, 0},
        {1, "100,reign,150,,D1,,F1,O1", "", 0, 20}, // its "(reign)" gives it away
        {1, "100,reign,150,,D1,,F1,O1", "300,reign,350,,D2,,F2,O2", 0, 0},
        {3, "100,ca.,150,,D1,,F1,O1", "110,ca.,160,,D2,,F1,O2", 100, 0},
        {3, "100,ca.,150,,D1,,F1,O1", "110,,160,,D2,,F2,O2", 0, 0},
        {5, "100,ca.,150,,D1,,F1,O1", "110,,160,,D2,,F2,O1", 0, 100},
        {4, "", "", 0, 0},
        {6, "100,ca.,,,D1,,F1,O1", "110,ca.,,,D2,,F2,O2", 100, 0},
        {6, "100,ca.,,,D1,,F1,O1", "111,ca.,,,D2,,F2,O2", 0, 0},
        {6, "100,ca.,,,D1,,F1,O1", "110,,,,D2,,F2,O2", 0, 100},
        {6, "100,,,,D1,,F1,O1", "140,reign,,,D2,,F2,O2", 0, 100},
        {6, "100,,,,D1,,F1,O1", "141,reign,,,D2,,F2,O2", 0, 0},
        {6, "100,reign,,,D1,,F1,O1", "120,,,,D2,,F2,O2", 0, 0},
        {8, "100,,300,,E1,,G1,N1", "300,,350,,E2,,G2,N2", 40, 0},
        {7, "100,,300,,E1,,G1,N1", "300,,350,,E2,,G2,N2", 0, 40},
        {7, "100,,300,ca.,E1,,G1,N1", "300,,350,,E2,,G2,N2", 40, 0},
        {7, "100,,299,ca.,E1,,G1,N1", "300,,350,,E2,,G2,N2", 0, 0},
        {9, "100,,300,,E1,,G1,A,B", "300,,,,E2,,G2,B,A", 0, 100},
        {11, "100,ca.,300,,E1,,G,A,B", "300,,,,E2,,G,B,A", 100, 0},
        {12, "100,,,,E1,,G1,A,B", "300,,,,E2,,G2,B,A", 40, 0},
        {12, "100,,,,E1,,G1,A,B", "300,,,,E2,,G1,B,", 0, 40},
        {10, "100,,,,E1,,G1,A,B", "300,,,,E2,,G1,B,", 0, 100},
        {10, "100,,,,E1,,G1,A,B", "300,,,,E2,,G2,B,A", 0, 0}, // the groups differ
        {13, "100,ca.,,,E1,,G1,N1,", "110,ca.,,,E2,,G2,N2,", 100, 0},
    };
    for (const auto& c : cases) {
        const Fairness found = drawn(c.type, c.first, c.second);
        const auto isabout = [](std::int64_t count, int wanted) {
            return wanted == 0 || wanted == 100 ? count == wanted : std::abs(count - wanted) <= 15;
        };
        EXPECT_TRUE(found.asked && isabout(found.clear, c.clear) && isabout(found.arguable, c.arguable))
            << c.type << ' ' << c.first << " / " << c.second << ": " << found.clear << ' ' << found.arguable;
    }
    EXPECT_FALSE(drawn(2, "1,,,,D,,F1,O1", "2,,,,D,,F2,O2").asked);
}

TEST_F(FairnessTest, TheTableHasAColumnForEachTimeline)
{
    writegood("", "", "rome");
    Findings findings;
    const std::string table = fairnesstable({"rome/", "nowhere"}, 100, 1, findings);
    EXPECT_TRUE(
        table.starts_with("| Kind of question | Rome: clear | arguable |\n|---|---|---|\n| Dates for person | "))
        << table;
    EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 15);
    EXPECT_EQ(findings.size(), 2U);
    EXPECT_EQ(fairnesstable({"rome"}, 100, 1, findings), table);
}

} // namespace brindor::authoring
