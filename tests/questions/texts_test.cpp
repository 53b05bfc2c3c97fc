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
        tests::setnumbered(2, 2);
        tests::setcatalogues({"Rome", "Egypt"}, {"General", "Queen"}, {"War", "Law"}, {"Gaul", "Parthia"});
        people[0].datetype1 = approx;
        people[0].datetype2 = reign;
        events[1].date2 = 7;
        events[1].nation1 = 1;
    }
};

TEST_F(Texts, DatesAndNationsOfEveryKindAndOfNone)
{
    const std::tuple<Dates, const char*, std::int16_t, std::int16_t, const char*> cases[] = {
        {tests::years(-5, 7, known, approx), "-5 to ca. 7", 1, 1, "Gaul"},
        {tests::years(9, 9, approx, reign), "ca. 9", 2, 1, "Parthia, Gaul"},
        {tests::years(1250, 1200, reign), "(reign) 1250 to 1200", 0, 0, ""},
        {tests::years(1200, 1250, 7, 0), " to 1250", 2, 0, "Parthia, "},
        {tests::years(1200, 1250, 0, -1), "1200 to ", 9, 9, ""},
        {tests::years(1200, 1200, 3, 0), "", -1, 2, ", Parthia"},
        {tests::year(0), "0", 3, 2, ", Parthia"}};
    for (const auto& [dates, text, nation1, nation2, names] : cases) {
        EXPECT_EQ(datetext(dates, "to"), text);
        events[0].nation1 = nation1;
        events[0].nation2 = nation2;
        EXPECT_EQ(nationtext(0), names);
    }
    isperson = 1;
    EXPECT_EQ(datetext(0, "-"), "ca. 1000 - (reign) 1005");
    isperson = 0;
    EXPECT_EQ(datetext(0, "-"), "-500");
}

// Every text of every type, of one item; behind the stroke those of an item outside, which is empty; of the types that
// sort, the line of a wrong order.
TEST_F(Texts, AllThirteenTypes)
{
    std::string text;
    for (qtype = 1; qtype <= lasttype; ++qtype) {
        const std::int16_t item = qtype <= 6 ? 0 : 1;
        isperson = 1 - item;
        const auto shown = [](std::int16_t k) { return paramname(itemtext, k, 0) + " (" + getpstr(k, qtype) + ')'; };
        text += typenames[static_cast<std::size_t>(qtype)] + ": " + paramname(questionline, item, 0) + "? " +
                shown(item) + " / " + shown(9) + (kindof(qtype).sorts ? ' ' + paramname(sortline, 0, 1) : "") + '\n';
    }
    EXPECT_EQ(text, "Dates for person: Which dates match Person 0? ca. 1000 to (reign) 1005 (ca. 1000 - (reign) "
                    "1005) / 0 (0) Person 0 1000 > Person 1 1010\n"
                    "Who was?: Who was Person 0? Did deed 0. And more. (Did deed 0.) /   ()\n"
                    "Faction, date: Match people with faction and date(s)? Rome ca. 1000 - (reign) 1005 (Rome 1000) "
                    "/  0 ( 0)\n"
                    "Faction, occupation: Match people with faction and occupation? Rome General (Rome General) /   "
                    "( )\n"
                    "Occupation, date: Match people with occupation and date(s)? General ca. 1000 - (reign) 1005 "
                    "(General 1000) /  0 ( 0)\n"
                    "People by date: ?  (Person 0) /  () Person 0 1000 > Person 1 1010\n"
                    "Dates for event: Which date(s) match Event 1? -490 to 7 (-490 - 7) / 0 (0) Event 0 -500 > Event "
                    "1 -490\n"
                    "What happened on?: What happened in -490 to 7? Event 1 -- Was thing 1. And more. (Was thing 1. "
                    "And more.) /  --   ( )\n"
                    "Nation, date: Match events with nation(s) and date(s)? Gaul, Parthia  -490 to 7 (Gaul, Parthia  "
                    "-490 - 7) /   0 (  0)\n"
                    "Nation, group: Match events with nation(s) and group? Gaul, Parthia  Law (Gaul, Parthia  Law) / "
                    "   (  )\n"
                    "Group, date: Match events with group(s) and date(s)? Law  -490 to 7 (Law  -490 - 7) /   0 (  "
                    "0)\n"
                    "Which nations were involved?: Which nation(s) involved with Event 1? Gaul, Parthia (Gaul, "
                    "Parthia) /  ()\n"
                    "Events by date: ?  (Event 1) /  () Event 0 -500 > Event 1 -490\n");
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
    people[0].faction = 99;
    people[0].occupation = -5;
    EXPECT_EQ(paramname(itemtext, 0, 0), " ");
    EXPECT_EQ(paramname(itemname, 0, 0) + typenames[0] + typenames[14], "Person 0Name");
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
