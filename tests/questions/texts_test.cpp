#include "questions/texts.h"

#include "questions/datetext.h"
#include "questions/marks.h"
#include "questions/question.h"
#include "questions/sortvalues.h"
#include "questions/types.h"
#include "support/programtest.h"
#include "support/story.h"
#include "support/timelines.h"
#include "timeline/usedmarks.h"

namespace brindor {

using tests::said;

class Texts : public tests::ProgramTest {
protected:
    Texts()
    {
        filltables();
        tests::setcatalogues({"Rome", "Egypt"}, {"General", "Queen"}, {"War", "Law"}, {"Gaul", "Parthia", "Gaul"});
        tests::settimeline(
            {tests::person("Caesar", tests::years(-100, -44, approx, known), "Crossed the Rubicon.",
                           "Killed on the Ides.", 1, 1),
             tests::person("Cleopatra", tests::years(-69, -30, reign, reign), "Last of her line.", "", 2, 0)},
            {tests::event("Alesia", tests::year(-52), "A siege.", "Vercingetorix yields.", 1, 1, 1),
             tests::event("Carrhae", tests::years(-53, 7), "", "", 0, 2, 3)});
    }
};

TEST_F(Texts, DatesOfEveryKind)
{
    const std::string kinds[] = {"", "ca. ", "(reign) "};
    for (std::int16_t one = 0; one < 3; ++one) {
        for (std::int16_t two = 0; two < 3; ++two) {
            const auto& [first, second] = std::tie(kinds[one], kinds[two]);
            EXPECT_EQ(datetext(tests::years(-5, 7, one, two), "to"), first + "-5 to " + second + '7');
            EXPECT_EQ(datetext(tests::years(9, 9, one, two), "to"), first + '9');
        }
    }
    const std::pair<Dates, const char*> odd[] = {{tests::years(1250, 1200), "1250 to 1200"},
                                                 {tests::years(1200, 1250, 7, 0), " to 1250"},
                                                 {tests::years(1200, 1250, 0, -1), "1200 to "},
                                                 {tests::years(1200, 1200, 3, 0), ""}};
    for (const auto& [dates, text] : odd) {
        EXPECT_EQ(datetext(dates, "to"), text);
    }
    for (isperson = 0; isperson < 2; ++isperson) {
        EXPECT_EQ(datetext(1, "-"), isperson == 0 ? "-53 - 7" : "(reign) -69 - (reign) -30");
    }
}

TEST_F(Texts, OneNationOrTwo)
{
    const std::tuple<std::int16_t, std::int16_t, const char*> cases[] = {
        {1, 1, "Gaul"}, {1, 2, "Gaul, Parthia"}, {1, 3, "Gaul, Gaul"}, {0, 0, ""}, {3, 0, "Gaul, "},
        {9, 9, ""},     {-1, 2, ", Parthia"},    {4, 2, ", Parthia"}};
    for (const auto& [nation1, nation2, text] : cases) {
        events[0].nation1 = nation1;
        events[0].nation2 = nation2;
        EXPECT_EQ(nationtext(0), text);
    }
}

// Every text of every type, of the first item; behind the stroke the shown and the compared text of the second, in
// which fields are empty.
TEST_F(Texts, AllThirteenTypes)
{
    const char* expected[] = {
        "Dates for person: Which dates match Caesar? ca. -100 to -44 (ca. -100 - -44) / (reign) -69 to (reign) -30 "
        "((reign) -69 - (reign) -30)",
        "Who was?: Who was Caesar? Crossed the Rubicon. Killed on the Ides. (Crossed the Rubicon.) / Last of her "
        "line.  (Last of her line.)",
        "Faction, date: Match people with faction and date(s)? Rome ca. -100 - -44 (Rome -100) / Egypt (reign) -69 - "
        "(reign) -30 (Egypt -69)",
        "Faction, occupation: Match people with faction and occupation? Rome General (Rome General) / Egypt  (Egypt )",
        "Occupation, date: Match people with occupation and date(s)? General ca. -100 - -44 (General -100) /  (reign) "
        "-69 - (reign) -30 ( -69)",
        "People by date: ?  (Caesar) /  (Cleopatra)",
        "Dates for event: Which date(s) match Alesia? -52 (-52) / -53 to 7 (-53 - 7)",
        "What happened on?: What happened in -52? Alesia -- A siege. Vercingetorix yields. (A siege. Vercingetorix "
        "yields.) / Carrhae --   ( )",
        "Nation, date: Match events with nation(s) and date(s)? Gaul  -52 (Gaul  -52) / Parthia, Gaul  -53 to 7 "
        "(Parthia, Gaul  -53 - 7)",
        "Nation, group: Match events with nation(s) and group? Gaul  War (Gaul  War) / Parthia, Gaul   (Parthia, "
        "Gaul  )",
        "Group, date: Match events with group(s) and date(s)? War  -52 (War  -52) /   -53 to 7 (  -53 - 7)",
        "Which nations were involved?: Which nation(s) involved with Alesia? Gaul (Gaul) / Parthia, Gaul (Parthia, "
        "Gaul)",
        "Events by date: ?  (Alesia) /  (Carrhae)"};
    for (qtype = 1; qtype <= lasttype; ++qtype) {
        isperson = qtype <= 6 ? 1 : 0;
        const auto shown = [](std::int16_t item) {
            return paramname(itemtext, item, 0) + " (" + getpstr(item, qtype) + ')';
        };
        EXPECT_EQ(typenames[static_cast<std::size_t>(qtype)] + ": " + paramname(questionline, 0, 0) + "? " + shown(0) +
                      " / " + shown(1),
                  expected[qtype - 1]);
        EXPECT_EQ(paramname(itemname, 0, 0), qtype <= 6 ? "Caesar" : "Alesia");
    }
    EXPECT_EQ(said(host), "");
}

TEST_F(Texts, SortingByTheFirstDate)
{
    qtype = 6;
    isperson = 1;
    EXPECT_EQ(paramname(sortprompt, 0, 0), "Sort People by date with earliest date on top");
    EXPECT_EQ(paramname(sortline, 1, 0), "Cleopatra -69 > Caesar -100");
    qtype = 13;
    EXPECT_EQ(paramname(sortprompt, 0, 0), "Sort Events by date with earliest date on top");
    EXPECT_EQ(getsortval(0, 1) + getsortval(0, 7) * 1000 + getsortval(1, 13) * 1000000, -100 - 52000 - 53000000);
    EXPECT_EQ(said(host), "");
    EXPECT_EQ(getsortval(0, 2), 0);
    EXPECT_EQ(said(host), "getsortval not defined2\n");
}

TEST_F(Texts, OutsideTheTables)
{
    EXPECT_EQ(getpstr(0, 14), "");
    EXPECT_EQ(getpstr(0, -1), "");
    EXPECT_EQ(said(host), "No getpstr for 14\nNo getpstr for -1\n");
    qtype = 4;
    EXPECT_EQ(paramname(6, 0, 0), "");
    EXPECT_EQ(paramname(itemtext, 99, 0), " "); // no such person
    people[0].faction = 99;
    people[0].occupation = -5;
    EXPECT_EQ(paramname(itemtext, 0, 0), " ");
    EXPECT_EQ(typenames[0] + typenames[14], "Name");
}

TEST_F(Texts, MarksStayFrom0To32767AndApart)
{
    isperson = 1;
    markused(0, -1);
    EXPECT_EQ(usedmarks, std::vector<std::int16_t>(5));
    markused(0, 4);
    isperson = 0;
    markused(0, 10);
    EXPECT_EQ(usedmarks, (std::vector<std::int16_t>{10, 0, 4, 0, 0}));
    usedmarks[0] = 32765;
    markused(0, 4);
    markused(99, 4); // no such item: the last slot belongs to none
    EXPECT_EQ(usedmarks, (std::vector<std::int16_t>{32767, 0, 4, 0, 4}));
}

} // namespace brindor
