#include "questions/texts.h"

#include "questions/datetext.h"
#include "questions/question.h"
#include "questions/types.h"
#include "support/programtest.h"
#include "support/timelines.h"

#include <string>

namespace brindor {

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
    const char* equal[] = {"1200", "ca. 1200", "(reign) 1200"};
    const char* different[3][3] = {
        {"1200 to 1250", "1200 to ca. 1250", "1200 to (reign) 1250"},
        {"ca. 1200 to 1250", "ca. 1200 to ca. 1250", "ca. 1200 to (reign) 1250"},
        {"(reign) 1200 to 1250", "(reign) 1200 to ca. 1250", "(reign) 1200 to (reign) 1250"}};
    for (std::int16_t one = 0; one < 3; ++one) {
        for (std::int16_t two = 0; two < 3; ++two) {
            for (const double family : {1.0, 0.0}) {
                isperson = family;
                const Dates same = tests::years(1200, 1200, one, two);
                const Dates range = tests::years(1200, 1250, one, two);
                tests::settimeline({tests::person("p", same), tests::person("q", range)},
                                   {tests::event("e", same), tests::event("f", range)});
                EXPECT_EQ(datetext(0, "to"), equal[one]);
                EXPECT_EQ(datetext(1, "to"), different[one][two]);
            }
        }
    }
    isperson = 1;
    tests::settimeline({tests::person("a", tests::years(-500, -450)), tests::person("b", tests::years(1250, 1200)),
                        tests::person("c", tests::years(1200, 1250, 7, 0)),
                        tests::person("d", tests::years(1200, 1250, 0, -1)),
                        tests::person("e", tests::years(1200, 1200, 3, 0))},
                       {});
    EXPECT_EQ(datetext(0, "-"), "-500 - -450");
    EXPECT_EQ(datetext(1, "to"), "1250 to 1200");
    EXPECT_EQ(datetext(2, "to"), " to 1250");
    EXPECT_EQ(datetext(3, "to"), "1200 to ");
    EXPECT_EQ(datetext(4, "to"), "");
}

TEST_F(Texts, Nations)
{
    const struct {
        std::int16_t nation1, nation2;
        const char* text;
    } cases[] = {{1, 1, "Gaul"}, {1, 2, "Gaul, Parthia"}, {1, 3, "Gaul, Gaul"}, {0, 0, ""}, {3, 0, "Gaul, "},
                 {9, 9, ""},     {-1, 2, ", Parthia"}};
    for (const auto& c : cases) {
        events[0].nation1 = c.nation1;
        events[0].nation2 = c.nation2;
        EXPECT_EQ(nationtext(0), c.text);
    }
}

// Item 0 of each family, and item 1 where a field is empty.
TEST_F(Texts, EveryTypesQuestionChoiceAndComparison)
{
    const struct {
        std::int16_t type;
        const char* question;
        const char* shown;
        const char* compared;
        const char* sparse; // shown, of item 1
    } cases[] = {
        {1, "Which dates match Caesar", "ca. -100 to -44", "ca. -100 - -44", "(reign) -69 to (reign) -30"},
        {2, "Who was Caesar", "Crossed the Rubicon. Killed on the Ides.", "Crossed the Rubicon.", "Last of her line. "},
        {3, "Match people with faction and date(s)", "Rome ca. -100 - -44", "Rome -100",
         "Egypt (reign) -69 - (reign) -30"},
        {4, "Match people with faction and occupation", "Rome General", "Rome General", "Egypt "},
        {5, "Match people with occupation and date(s)", "General ca. -100 - -44", "General -100",
         " (reign) -69 - (reign) -30"},
        {6, "", "", "Caesar", ""},
        {7, "Which date(s) match Alesia", "-52", "-52", "-53 to 7"},
        {8, "What happened in -52", "Alesia -- A siege. Vercingetorix yields.", "A siege. Vercingetorix yields.",
         "Carrhae --  "},
        {9, "Match events with nation(s) and date(s)", "Gaul  -52", "Gaul  -52", "Parthia, Gaul  -53 to 7"},
        {10, "Match events with nation(s) and group", "Gaul  War", "Gaul  War", "Parthia, Gaul  "},
        {11, "Match events with group(s) and date(s)", "War  -52", "War  -52", "  -53 to 7"},
        {12, "Which nation(s) involved with Alesia", "Gaul", "Gaul", "Parthia, Gaul"},
        {13, "", "", "Alesia", ""},
    };
    for (const auto& c : cases) {
        qtype = c.type;
        isperson = c.type <= 6 ? 1 : 0;
        EXPECT_EQ(paramname(questionline, 0, 0), c.question) << c.type;
        EXPECT_EQ(paramname(itemtext, 0, 0), c.shown) << c.type;
        EXPECT_EQ(getpstr(0, c.type), c.compared) << c.type;
        EXPECT_EQ(paramname(itemtext, 1, 0), c.sparse) << c.type;
        EXPECT_EQ(paramname(itemname, 0, 0), c.type <= 6 ? "Caesar" : "Alesia") << c.type;
    }
    isperson = 0;
    EXPECT_EQ(getpstr(1, 8), " ");
    EXPECT_EQ(getpstr(1, 9), "Parthia, Gaul  -53 - 7");
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(Texts, Sorting)
{
    qtype = 6;
    isperson = 1;
    EXPECT_EQ(paramname(sortprompt, 0, 0), "Sort People by date with earliest date on top");
    EXPECT_EQ(paramname(sortline, 1, 0), "Cleopatra -69 > Caesar -100");
    qtype = 13;
    EXPECT_EQ(paramname(sortprompt, 0, 0), "Sort Events by date with earliest date on top");
}

TEST_F(Texts, OutsideTheTables)
{
    EXPECT_EQ(getpstr(0, 14), "");
    EXPECT_EQ(getpstr(0, -1), "");
    ASSERT_EQ(host.messages.size(), 2U);
    EXPECT_EQ(host.messages[0].text, "No getpstr for 14");
    EXPECT_EQ(host.messages[1].text, "No getpstr for -1");
    qtype = 4;
    isperson = 1;
    EXPECT_EQ(paramname(6, 0, 0), "");
    EXPECT_EQ(paramname(itemtext, 99, 0), " "); // no such person
    people[0].faction = 99;
    people[0].occupation = -5;
    EXPECT_EQ(paramname(itemtext, 0, 0), " ");
    EXPECT_EQ(typenames[14], "");
    EXPECT_EQ(typenames[12], "Which nations were involved?");
}

} // namespace brindor
