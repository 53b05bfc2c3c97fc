#include "authoring/commands.h"
#include "support/programtest.h"
#include "tools/sample.h"

#include <gtest/gtest.h>

namespace brindor::authoring {

namespace fs = std::filesystem;
using tests::report;
using tests::writefile;
using tests::writefolder;

class Check : public tests::ProgramTest {
protected:
    // The findings about good files with rows added; a good file's last row is line 11.
    static std::string withrows(const std::string& peoplerows, const std::string& eventrows)
    {
        writefolder("in", tests::goodpeople() + peoplerows, tests::goodevents() + eventrows);
        return report(checkfolder("in"));
    }
};

TEST_F(Check, HasNothingAgainstAGoodFolder)
{
    EXPECT_EQ(withrows("", ""), "");
}

TEST_F(Check, HasNothingAgainstAGoodFile)
{
    writefolder("in", tests::goodpeople(), "War,9,,,,D,,War,Rome,,,,,own.bmp\n" + tests::goodevents());
    writefile("in/own.bmp", tests::bmpfile(3, 2));
    fs::create_directories("game/maps");
    ASSERT_EQ(report(maketimeline("in", "game/X.bd3")), "");
    EXPECT_EQ(checkfile("game/X.bd3").size(), 10U); // the maps are not drawn yet
    for (const char* name :
         {"battle-of-edessa", "council-of-nicaea", "sack-of-luoyang", "founding-of-nalanda", "obelisks-of-aksum",
          "crossing-of-the-rhine", "treaty-of-acilisene", "iron-pillar", "battle-of-fei-river", "sack-of-carthage"}) {
        writefile("game/maps/x-" + std::string(name) + ".png", "");
    }
    EXPECT_EQ(report(checkfile("game/X.bd3")), "");
    fs::remove("game/own.bmp");
    fs::remove("game/maps/x-iron-pillar.png");
    EXPECT_EQ(report(checkfile("game/X.bd3")), "game/X.bd3:106: error: picture: own.bmp is missing\n"
                                               "game/X.bd3:176: error: picture: maps/x-iron-pillar.png is missing\n");
}

TEST_F(Check, WarnsAboutPeople)
{
    struct Case {
        std::string row;
        std::string text;
    };
    const std::string longname(41, 'n');
    const std::string longtext(61, 't');
    const std::string longfaction(31, 'f');
    const std::vector<Case> cases = {
        {"Ma Rong,100,,,,Rong loved the lute.,,China,Poet", "column 6 (desc1): the word \"rong\" gives the name away"},
        {"Ma Rong,100,,,,Loved the lute.,Till 166.,China,Poet",
         "column 7 (desc2): 166 looks like a year, which gives the date away"},
        {"Ma Rong,100,,,,TAUGHT GEOMETRY in Alexandria.,,China,Poet",
         "column 6 (desc1): Hypatia, line 2, has the same text"},
        {longname + ",100,,,,D,,China,Poet",
         "column 1 (name): 41 characters are too long for the screens; at most 40 fit"},
        {"Ma Rong,100,,,," + longtext + ",,China,Poet",
         "column 6 (desc1): 61 characters are too long for the screens; at most 60 fit"},
        {"Ma Rong,100,,,,D,,Han,Poet", "column 8 (faction): the faction \"Han\" is used only here"},
        {"Ma Rong,100,,,,D,,China,Lutist", "column 9 (occupation): the occupation \"Lutist\" is used only here"},
        {"Ma Rong,100,,,,D,,,Poet", "column 8 (faction): empty; the questions that name it leave this record out"},
        {"Ma Rong,100,,,,,,China,Poet", "column 6 (desc1): empty; questions about descriptions leave this record out"},
        {"A,100,,,,D1,,X,Poet\nB,101,,,,D2,,X,Poet", ""},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(withrows(c.row + '\n', ""), c.text.empty() ? "" : "in/people.csv:12: warning: " + c.text + '\n')
            << c.row;
    }
    EXPECT_EQ(
        withrows("A,100,,,,D1,," + longfaction + ",Poet\nB,101,,,,D2,," + longfaction + ",Poet\n", ""),
        "in/people.csv:12: warning: column 8 (faction): 31 characters are too long for the screens; at most 30 fit\n");
}

TEST_F(Check, WarnsAboutEvents)
{
    struct Case {
        std::string row;
        std::string text;
    };
    const std::vector<Case> cases = {
        {"Fire of 64,64,,,,D,,War,Rome,,Rome,41.9,12.5,", ""},
        {"Fire of 464,464,,,,D,,War,Rome,,Rome,41.9,12.5,",
         "column 1 (name): 464 looks like a year, which gives the date away"},
        {"Fire,260,,,,D,,War,Rome,,Rome,41.9,12.5,",
         "column 2 (date1): the date \"260\" is that of Battle of Edessa, line 2, too, so \"What happened in\" has two "
         "right answers"},
        {"Fire,260,ca.,,,D,,War,Rome,,Rome,41.9,12.5,", ""},
        {std::string(61, 'n') + ",1,,,,D,,War,Rome,,Rome,41.9,12.5,",
         "column 1 (name): 61 characters are too long for the screens; at most 60 fit"},
        {"Fire,1,,,,D,,Fire,Rome,,Rome,41.9,12.5,", "column 8 (group): the group \"Fire\" is used only here"},
        {"Fire,1,,,,D,,War,Rome,Gaul,Rome,41.9,12.5,", "column 10 (nation2): the nation \"Gaul\" is used only here"},
        {"Fire,1,,,,D,,War,Gaul,,Rome,41.9,12.5,", "column 9 (nation1): the nation \"Gaul\" is used only here"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(withrows("", c.row + '\n'), c.text.empty() ? "" : "in/events.csv:12: warning: " + c.text + '\n')
            << c.row;
    }
}

TEST_F(Check, TellsErrors)
{
    struct Case {
        std::string row; // of events.csv
        std::string text;
    };
    const std::vector<Case> cases = {
        {"Iron Pillar,2,,,,D,,War,Rome,,Rome,41.9,12.5,", "column 1 (name): \"Iron Pillar\" stands at line 9 too"},
        {"Fire,2,,1,,D,,War,Rome,,Rome,41.9,12.5,", "column 4 (date2): 1 lies before the first date, 2"},
        {"Fire,2,,,,D,,War,Rome,,,,,",
         "column 11 (place): the event has no picture; give place, latitude and longitude for a map, or a picture of "
         "your own"},
        {"Fire,2,,,,D,,War,Rome,,,,,own.png", "column 14 (picture): own.png is missing"},
        {"Fire,2,,,,D,,War,Rome,,,,,maps/own.png", "column 14 (picture): maps/own.png is missing"},
        {"Fire,2,,,,D,,War,Rome,,Rome,41.9,12.5,maps/own.png", ""},
        {"Fire,x,,,,D,,War,Rome,,Rome,41.9,12.5,", "column 2 (date1): \"x\" is not a whole number"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(withrows("", c.row + '\n'), c.text.empty() ? "" : "in/events.csv:12: error: " + c.text + '\n')
            << c.row;
    }
}

TEST_F(Check, TellsWhichQuestionsCannotBeAsked)
{
    const auto cannot = [](const std::string& file, const std::string& kind, const std::string& family) {
        return "in/" + file + ":1: error: the questions \"" + kind + "\" cannot be asked; they need five " + family +
               " that differ in what the question shows\n";
    };
    // Five people with one faction and one occupation; ten events of four kinds and four nations.
    writefolder("in", "A,1,,,,D1,,F,O\nB,2,,,,D2,,F,O\nC,3,,,,D3,,F,O\nD,4,,,,D4,,F,O\nE,5,,,,D5,,F,O\n",
                "V,1,,,,D1,,G,N,,P,1,1,\nW,2,,,,D2,,G,N,,P,1,1,\nX,3,,,,D3,,G,M,,P,1,1,\nY,4,,,,D4,,H,M,,P,1,1,\n");
    EXPECT_EQ(report(checkfolder("in")),
              cannot("people.csv", "Faction, occupation", "people") +
                  cannot("events.csv", "Dates for event", "events") +
                  cannot("events.csv", "What happened on?", "events") + cannot("events.csv", "Nation, date", "events") +
                  cannot("events.csv", "Nation, group", "events") + cannot("events.csv", "Group, date", "events") +
                  cannot("events.csv", "Which nations were involved?", "events") +
                  cannot("events.csv", "Events by date", "events") +
                  "in/events.csv:5: warning: column 8 (group): the group \"H\" is used only here\n");
}

TEST_F(Check, TellsWhereAFileIsWrong)
{
    // Numbers on lines of their own move the records down.
    const std::string item = "\n\n1\n0\n1, 0\n";
    writefile(
        "X.bd3",
        "2\n1\n\n" + item +
            "D\n\n\n1, 2\n\n0, 0\n\nTwo\n5, 3\n4, 0\nE\n\n\n0, -1\n\n0, 0\n\n\nWar\n"
            "2, 0\n2, 0\nF\n\n\n1, 1, 1\n\n0, 0\n\n1\n\nRome\n0\n\n1\n\nPoet\n0\n\n1\n\nWar\n0\n\n1\n\nGaul\n0\n");
    std::string records;
    for (const Finding& finding : checkfile("X.bd3")) {
        records += finding.severity == Severity::error && finding.line > 2 ? findingline(finding) + '\n' : "";
    }
    EXPECT_EQ(records, "X.bd3:5: error: name: the name is empty\n"
                       "X.bd3:5: error: occupation: 2 lies outside the list, which ends at 1\n"
                       "X.bd3:16: error: date2: 4 lies before the first date, 5\n"
                       "X.bd3:16: error: kind1: 3 is no kind of date; the kinds are 0, 1 and 2\n"
                       "X.bd3:16: error: occupation: -1 lies outside the list, which ends at 1\n");
}

} // namespace brindor::authoring
