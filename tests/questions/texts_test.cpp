#include "questions/texts.h"

#include "questions/datetext.h"
#include "questions/marks.h"
#include "questions/question.h"
#include "questions/sortvalues.h"
#include "questions/types.h"
#include "support/programtest.h"
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

TEST_F(Texts, DatesAndNationsOfEveryKindAndOfNone)
{
    const std::tuple<Dates, const char*, std::int16_t, std::int16_t, const char*> cases[] = {
        {tests::years(-5, 7, known, approx), "-5 to ca. 7", 1, 1, "Gaul"},
        {tests::years(9, 9, approx, reign), "ca. 9", 1, 3, "Gaul, Gaul"},
        {tests::years(1250, 1200, reign), "(reign) 1250 to 1200", 0, 0, ""},
        {tests::years(1200, 1250, 7, 0), " to 1250", 3, 0, "Gaul, "},
        {tests::years(1200, 1250, 0, -1), "1200 to ", 9, 9, ""},
        {tests::years(1200, 1200, 3, 0), "", -1, 2, ", Parthia"},
        {tests::year(0), "0", 4, 2, ", Parthia"}};
    for (const auto& [dates, text, nation1, nation2, names] : cases) {
        EXPECT_EQ(datetext(dates, "to"), text);
        events[0].nation1 = nation1;
        events[0].nation2 = nation2;
        EXPECT_EQ(nationtext(0), names);
    }
    for (isperson = 0; isperson < 2; ++isperson) {
        EXPECT_EQ(datetext(1, "-"), isperson == 0 ? "-53 - 7" : "(reign) -69 - (reign) -30");
    }
}

// Every text of every type, of the first item; behind the stroke the shown and the compared text of the second, in
// which fields are empty; of the types that sort, the line of a wrong order.
TEST_F(Texts, AllThirteenTypes)
{
    std::string text;
    for (qtype = 1; qtype <= lasttype; ++qtype) {
        isperson = qtype <= 6 ? 1 : 0;
        const auto shown = [](std::int16_t item) {
            return paramname(itemtext, item, 0) + " (" + getpstr(item, qtype) + ')';
        };
        text += typenames[static_cast<std::size_t>(qtype)] + ": " + paramname(questionline, 0, 0) + "? " + shown(0) +
                " / " + shown(1) + (kindof(qtype).sorts ? " " + paramname(sortline, 0, 1) : "") + '\n';
    }
    EXPECT_EQ(text, "Dates for person: Which dates match Caesar? ca. -100 to -44 (ca. -100 - -44) / (reign) -69 to "
                    "(reign) -30 ((reign) -69 - (reign) -30) Caesar -100 > Cleopatra -69\n"
                    "Who was?: Who was Caesar? Crossed the Rubicon. Killed on the Ides. (Crossed the Rubicon.) / Last "
                    "of her line.  (Last of her line.)\n"
                    "Faction, date: Match people with faction and date(s)? Rome ca. -100 - -44 (Rome -100) / Egypt "
                    "(reign) -69 - (reign) -30 (Egypt -69)\n"
                    "Faction, occupation: Match people with faction and occupation? Rome General (Rome General) / "
                    "Egypt  (Egypt )\n"
                    "Occupation, date: Match people with occupation and date(s)? General ca. -100 - -44 (General -100) "
                    "/  (reign) -69 - (reign) -30 ( -69)\n"
                    "People by date: ?  (Caesar) /  (Cleopatra) Caesar -100 > Cleopatra -69\n"
                    "Dates for event: Which date(s) match Alesia? -52 (-52) / -53 to 7 (-53 - 7) Alesia -52 > Carrhae "
                    "-53\n"
                    "What happened on?: What happened in -52? Alesia -- A siege. Vercingetorix yields. (A siege. "
                    "Vercingetorix yields.) / Carrhae --   ( )\n"
                    "Nation, date: Match events with nation(s) and date(s)? Gaul  -52 (Gaul  -52) / Parthia, Gaul  -53 "
                    "to 7 (Parthia, Gaul  -53 - 7)\n"
                    "Nation, group: Match events with nation(s) and group? Gaul  War (Gaul  War) / Parthia, Gaul   "
                    "(Parthia, Gaul  )\n"
                    "Group, date: Match events with group(s) and date(s)? War  -52 (War  -52) /   -53 to 7 (  -53 - "
                    "7)\n"
                    "Which nations were involved?: Which nation(s) involved with Alesia? Gaul (Gaul) / Parthia, Gaul "
                    "(Parthia, Gaul)\n"
                    "Events by date: ?  (Alesia) /  (Carrhae) Alesia -52 > Carrhae -53\n");
    EXPECT_EQ(said(host), "");
}

TEST_F(Texts, OutsideTheTables)
{
    EXPECT_EQ(getpstr(0, 14), "");
    EXPECT_EQ(getpstr(0, -1), "");
    EXPECT_EQ(getsortval(0, 2), 0);
    EXPECT_EQ(said(host), "No getpstr for 14\nNo getpstr for -1\ngetsortval not defined2\n");
    qtype = 4;
    isperson = 1;
    EXPECT_EQ(paramname(6, 0, 0), "");
    EXPECT_EQ(paramname(itemtext, 99, 0), " "); // no such person
    people[0].faction = 99;
    people[0].occupation = -5;
    EXPECT_EQ(paramname(itemtext, 0, 0), " ");
    EXPECT_EQ(paramname(itemname, 0, 0) + typenames[0] + typenames[14], "CaesarName");
}

TEST_F(Texts, MarksStayFrom0To32767AndApart)
{
    isperson = 1;
    markused(0, -1);
    EXPECT_EQ(usedmarks, std::vector<std::int16_t>(5));
    markused(0, 4);
    isperson = 0;
    markused(0, 32765);
    markused(0, 4);
    markused(99, 4); // no such item: the last slot belongs to none
    EXPECT_EQ(usedmarks, (std::vector<std::int16_t>{32767, 0, 4, 0, 4}));
}

} // namespace brindor
