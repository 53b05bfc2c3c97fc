#include "authoring/commands.h"
#include "authoring/fairness.h"
#include "support/programtest.h"
#include "tools/sample.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace brindor::authoring {

using tests::writefolder;

class FairnessTest : public tests::ProgramTest {
protected:
    // Of 100 questions of a kind about the same five people or events; the first of them are given.
    static Fairness drawn(std::int16_t type, const std::vector<std::string>& people,
                          const std::vector<std::string>& events)
    {
        const std::vector<std::string> plainpeople = {"100,,150,,D1,,F1,O1", "300,,350,,D2,,F2,O2",
                                                      "500,,550,,D3,,F3,O3", "700,,750,,D4,,F4,O4",
                                                      "900,,950,,D5,,F5,O5"};
        const std::vector<std::string> plainevents = {"100,,,,E1,,G1,N1,", "300,,,,E2,,G2,N2,", "500,,,,E3,,G3,N3,",
                                                      "700,,,,E4,,G4,N4,", "900,,,,E5,,G5,N5,"};
        std::string peoplerows;
        std::string eventrows;
        for (std::size_t i = 0; i < 5; ++i) {
            peoplerows += "P" + std::to_string(i) + ',' + (i < people.size() ? people[i] : plainpeople[i]) + '\n';
            eventrows += "E" + std::to_string(i) + ',' + (i < events.size() ? events[i] : plainevents[i]) + ",,,,\n";
        }
        writefolder("x", peoplerows, eventrows);
        Findings findings;
        EXPECT_TRUE(loadtarget("x", findings));
        return fairnessof(type, 100, 1);
    }
};

TEST_F(FairnessTest, CountsQuestionsWithTwoAnswersByTheRules)
{
    struct Case {
        std::int16_t type;
        std::vector<std::string> people;
        std::vector<std::string> events;
        std::int64_t clear; // about: of five items one of four is asked about, so a pair of them is met in 40 of 100
        std::int64_t arguable;
    };
    const std::vector<std::string> ofnations = {"100,,,,E1,,G1,A,B", "300,,,,E2,,G2,B,A"};
    const std::vector<std::string> inpart = {"100,,,,E1,,G1,A,B", "300,,,,E2,,G1,B,"};
    const std::vector<Case> cases = {
        {1, {}, {}, 0, 0},
        {1, {"100,ca.,150,,D1,,F1,O1", "110,,160,ca.,D2,,F2,O2"}, {}, 40, 0},
        {1, {"100,ca.,150,,D1,,F1,O1", "110,,160,,D2,,F2,O2"}, {}, 0, 40},
        {1, {"100,,150,,D1,,F1,O1", "110,,160,,D2,,F2,O2"}, {}, 0, 0},
        {1, {"100,ca.,150,,D1,,F1,O1", "110,,161,,D2,,F2,O2"}, {}, 0, 0},
        {1, {"100,reign,150,,D1,,F1,O1"}, {}, 0, 20}, // its "(reign)" gives it away
        {1, {"100,reign,150,,D1,,F1,O1", "300,reign,350,,D2,,F2,O2"}, {}, 0, 0},
        {3, {"100,ca.,150,,D1,,F1,O1", "110,ca.,160,,D2,,F1,O2"}, {}, 100, 0},
        {3, {"100,ca.,150,,D1,,F1,O1", "110,,160,,D2,,F2,O2"}, {}, 0, 0},
        {5, {"100,ca.,150,,D1,,F1,O1", "110,,160,,D2,,F2,O1"}, {}, 0, 100},
        {4, {}, {}, 0, 0},
        {6, {"100,ca.,,,D1,,F1,O1", "110,ca.,,,D2,,F2,O2"}, {}, 100, 0},
        {6, {"100,ca.,,,D1,,F1,O1", "111,ca.,,,D2,,F2,O2"}, {}, 0, 0},
        {6, {"100,ca.,,,D1,,F1,O1", "110,,,,D2,,F2,O2"}, {}, 0, 100},
        {6, {"100,,,,D1,,F1,O1", "140,reign,,,D2,,F2,O2"}, {}, 0, 100},
        {6, {"100,,,,D1,,F1,O1", "141,reign,,,D2,,F2,O2"}, {}, 0, 0},
        {6, {"100,reign,,,D1,,F1,O1", "120,,,,D2,,F2,O2"}, {}, 0, 0},
        {8, {}, {"100,,300,,E1,,G1,N1,"}, 40, 0},
        {7, {}, {"100,,300,,E1,,G1,N1,"}, 0, 40},
        {7, {}, {"100,,300,ca.,E1,,G1,N1,"}, 40, 0},
        {7, {}, {"100,,299,ca.,E1,,G1,N1,"}, 0, 0},
        {9, {}, {"100,,300,,E1,,G1,A,B", "300,,,,E2,,G2,B,A"}, 0, 100},
        {11, {}, {"100,ca.,300,,E1,,G,A,B", "300,,,,E2,,G,B,A"}, 100, 0},
        {12, {}, ofnations, 40, 0},
        {12, {}, inpart, 0, 40},
        {10, {}, inpart, 0, 100},
        {10, {}, ofnations, 0, 0}, // the groups differ
        {13, {}, {"100,ca.,,,E1,,G1,N1,", "110,ca.,,,E2,,G2,N2,"}, 100, 0},
    };
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Case& c = cases[i];
        const Fairness found = drawn(c.type, c.people, c.events);
        const auto about = [](std::int64_t wanted) { return wanted == 0 || wanted == 100 ? 0 : 15; };
        EXPECT_TRUE(found.asked);
        EXPECT_NEAR(static_cast<double>(found.clear), static_cast<double>(c.clear), about(c.clear)) << "case " << i;
        EXPECT_NEAR(static_cast<double>(found.arguable), static_cast<double>(c.arguable), about(c.arguable))
            << "case " << i;
    }
    EXPECT_FALSE(drawn(2, {"1,,,,D,,F1,O1", "2,,,,D,,F2,O2"}, {}).asked);
}

TEST_F(FairnessTest, TheTableHasAColumnForEachTimeline)
{
    writefolder("old/rome", tests::goodpeople(), tests::goodevents());
    Findings findings;
    const std::string table = fairnesstable({"old/rome/", "nowhere"}, 100, 1, findings);
    EXPECT_TRUE(
        table.starts_with("| Kind of question | Rome: clear | arguable |\n|---|---|---|\n| Dates for person | "))
        << table;
    EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 15);
    EXPECT_EQ(findings.size(), 2U);
    EXPECT_EQ(fairnesstable({"old/rome"}, 100, 1, findings), table);
}

} // namespace brindor::authoring
