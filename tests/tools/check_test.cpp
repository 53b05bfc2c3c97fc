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

struct Case {
    std::string row;
    std::string text; // behind the file's name and line 12; empty where nothing is to be said
};

TEST_F(Check, HasNothingAgainstGoodOnes)
{
    EXPECT_EQ(withrows("", ""), "");
    fs::create_directories("in/maps");
    writefile("in/maps/own.bmp", tests::bmpfile(40, 30));
    writefolder("in", tests::goodpeople(), tests::goodevents() + "War,9,,,,D,,War,Rome,,,,,maps/own.bmp\n");
    ASSERT_EQ(report(maketimeline("in", "game/X.bd3", false).findings), "");
    EXPECT_EQ(checkfile("game/X.bd3").size(), 10U); // the maps are not drawn yet
    fs::remove("game/x/maps/own.bmp");
    EXPECT_EQ(checkfile("game/X.bd3").size(), 11U);
}

TEST_F(Check, WarnsAboutPeople)
{
    const std::string longname(41, 'n');
    const std::string longtext(61, 't');
    const std::vector<Case> cases = {
        {"Ma Rong,100,,,,Rong loved the lute.,,China,Poet", "column 6 (desc1): the word \"rong\" gives the name away"},
        {"Ma Rong,100,,,,Loved the lute.,Till 166.,China,Poet",
         "column 7 (desc2): 166 looks like a year, which gives the date away"},
        {"Ma Rong,100,,,,Weighed 166 pounds.,,China,Poet", ""},
        {"Ma Rong,100,,,,TAUGHT GEOMETRY in Alexandria.,,China,Poet",
         "column 6 (desc1): Hypatia, line 2, has the same text"},
        {longname + ",100,,,,D,,China,Poet",
         "column 1 (name): 41 characters are too long for the screens; at most 40 fit"},
        {"Ma Rong,100,,,," + longtext + ",,China,Poet",
         "column 6 (desc1): 61 characters are too long for the screens; at most 60 fit"},
        {"Ma Rong,100,,,,D,,Han,Poet", "column 8 (faction): the faction \"Han\" is used only here"},
        {"Ma Rong,100,,,,D,,,Poet", "column 8 (faction): empty; the questions that name it leave this record out"},
        {"Ma Rong,100,,,,,,China,Poet", "column 6 (desc1): empty; questions about descriptions leave this record out"},
        {"A,100,,,,D1,,X,Poet\nB,101,,,,D2,,X,Poet", ""},
        {"A,100,,,,D,,Eastern China,Poet\nB,101,,,,E,,Eastern China,Poet", "?"},
        {"A,100,,,,D,,Palmira,Poet\nB,1,,,,D1,,Palmyra,Poet",
         "column 8 (faction): the faction \"Palmira\" stands once; did you mean \"Palmyra\"? it stands 3 times"},
        {"A,100,,,,D,,china,Poet",
         "column 8 (faction): the faction \"china\" stands once; did you mean \"China\"? it stands 2 times"},
    };
    for (const Case& c : cases) {
        const std::string expected =
            c.text.empty()  ? ""
            : c.text == "?" ? "in/people.csv:10: warning: column 8 (faction): the faction \"China\" stands whole "
                              "in \"Eastern China\", line 12; a record may fit both names, so merge or rename "
                              "them\n"
                            : "in/people.csv:12: warning: " + c.text + '\n';
        EXPECT_EQ(withrows(c.row + '\n', ""), expected) << c.row;
    }
    EXPECT_EQ(
        withrows("A,1,,,,D1,,F1,Poet\nB,2,,,,D2,,F2,Poet\nC,3,,,,D3,,F3,Poet\n", ""),
        "in/people.csv:1: warning: 3 factions are used only once, F1, F2, F3; such a name is soon known by heart\n");
}

TEST_F(Check, WarnsAboutEvents)
{
    const std::string noplace =
        "the event has no picture; give place, latitude and longitude for a map, or a picture of "
        "your own";
    const std::vector<Case> cases = {
        {"Fire of 64,64,,,,D,,War,Rome,,Rome,41.9,12.5,", ""},
        {"Fire of 464,464,,,,D,,War,Rome,,Rome,41.9,12.5,",
         "warning: column 1 (name): 464 looks like a year, which gives the date away"},
        {"Fire,260,ca.,,,D,,War,Rome,,Rome,41.9,12.5,", "note: column 2 (date1): the date is that of Battle of Edessa, "
                                                        "line 2, too; fair only where each of them is well "
                                                        "known for it"},
        {std::string(61, 'n') + ",1,,,,D,,War,Rome,,Rome,41.9,12.5,",
         "warning: column 1 (name): 61 characters are too long for the screens; at most 60 fit"},
        {"Fire,1,,,,D,,Fire,Rome,,Rome,41.9,12.5,", "warning: column 8 (group): the group \"Fire\" is used only here"},
        {"Fire,1,,,,D,,War,Rome,Gaul,Rome,41.9,12.5,",
         "warning: column 10 (nation2): the nation \"Gaul\" is used only here"},
        {"Fire,1,,,,D,,War,Rome,,,,,", "warning: column 14 (picture): " + noplace},
        {"Fire,1,,,,D,,War,Rome,,,,,wide.bmp", "warning: column 14 (picture): wide.bmp is 80 x 30 pixels and will be "
                                               "stretched to 4:3; cut it to that shape, as 640 x 480"},
        {"Fire,1,,,,D,,War,Rome,,Rome,41.9,12.5,maps/old.bmp",
         "warning: column 14 (picture): maps/old.bmp is a map that was drawn before, and stays; empty this column, and "
         "the "
         "map of Rome is drawn"},
        {"Fire,1,,,,D,,War,Rome,,,,,maps/gone.png", "warning: column 14 (picture): maps/gone.png cannot be opened: No "
                                                    "such file or directory; give place, latitude and "
                                                    "longitude and no picture, and it is drawn anew"},
        {"Fire,1,,,,D,,War,Rome,,Rome,12.5,-41.9,", "warning: column 12 (latitude): Rome lies in the sea, 1377 km from "
                                                    "land; right for a small island or a fight at "
                                                    "sea, else look at both degrees"},
        {"Fire,1,,,,D,,War,Rome,,Coral Sea,-15,155,", ""},
        {"Fire,999,,,,D,,War,Rome,,CARTHAGE,37.6,-1,",
         "warning: column 11 (place): CARTHAGE lies 1005 km from where it stands at line 11"},
    };
    fs::create_directories("in/maps");
    writefile("in/wide.bmp", tests::bmpfile(80, 30));
    writefile("in/maps/old.bmp", tests::bmpfile(40, 30));
    for (const Case& c : cases) {
        EXPECT_EQ(withrows("", c.row + '\n'), c.text.empty() ? "" : "in/events.csv:12: " + c.text + '\n') << c.row;
    }
    // A photograph on its side, as its mark says, is as high as it is wide.
    const std::string mark("\xFF\xD8\xFF\xE1\0\x22"
                           "Exif\0\0MM\0\x2A\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0",
                           38);
    const std::string frame("\xFF\xC0\0\x0B\x08\0\x28\0\x1E\x01\x01\x11\0\xFF\xD9", 15);
    writefile("in/turned.jpg", mark + frame);
    EXPECT_EQ(
        withrows("", "Fire,1,,,,D,,War,Rome,,,,,turned.jpg\n"),
        "in/events.csv:12: note: column 14 (picture): turned.jpg carries a rotation mark, which is respected when it "
        "is shown\n");
}

TEST_F(Check, WarnsAboutRangesAndReigns)
{
    std::string years;
    for (int year = 1; year <= 21; ++year) {
        years += "Fire " + std::to_string(year) + ',' + std::to_string(year) + ",,,,D,,War,Rome,,Rome,41.9,12.5,\n";
    }
    EXPECT_EQ(withrows("", years + "Long fire,1,,20,,D,,War,Rome,,Rome,41.9,12.5,\n"), "");
    EXPECT_EQ(
        withrows("", years + "Long fire,1,,21,,D,,War,Rome,,Rome,41.9,12.5,\n"),
        "in/events.csv:33: warning: column 4 (date2): 1 to 21 covers 21 other events; give the year for which it is "
        "known\n");
    const auto people = [](int lives, int reigns) {
        std::string rows;
        for (int i = 0; i < lives + reigns; ++i) {
            rows += "P" + std::to_string(i) + ',' + std::to_string(i) + (i < lives ? ",," : ",reign,") + ",,T" +
                    std::string(static_cast<std::size_t>(i) / 26 + 1, static_cast<char>('a' + i % 26)) +
                    ",,China,Poet\n";
        }
        return rows;
    };
    EXPECT_EQ(withrows(people(100, 15), ""), ""); // 15 of 125 are 12 of 100
    EXPECT_EQ(
        withrows(people(90, 14), ""),
        "in/people.csv:1: warning: 14 of 114 people have a reign for a date, so \"(reign)\" gives answers away; either "
        "none should, or at least 15\n");
    const std::string many =
        "in/people.csv:1: warning: 16 of 126 people have a reign for a date; at most 12 of 100 should, "
        "since sorting takes it for a birth: give birth and death where they are known\n";
    EXPECT_EQ(withrows(people(100, 16), ""), many);
}

TEST_F(Check, TellsWhichQuestionsCannotBeAsked)
{
    const auto cannot = [](const std::string& file, const std::string& kind, const std::string& family) {
        return "in/" + file + ":1: error: the questions \"" + kind + "\" cannot be asked; they need five " + family +
               " that differ in what the question shows\n";
    };
    // Five people with one faction and one occupation; five events of two groups and two nations.
    writefolder("in", "A,1,,,,D1,,F,O\nB,2,,,,D2,,F,O\nC,3,,,,D3,,F,O\nD,4,,,,D4,,F,O\nE,5,,,,D5,,F,O\n",
                "V,1,,,,D,,G,N,,P,1,10,\nW,2,,,,D,,G,N,,P,1,10,\nX,3,,,,D,,G,M,,P,1,10,\nY,4,,,,D,,H,M,,P,1,10,\n"
                "Z,4,,,,D,,H,M,,P,1,10,\n");
    EXPECT_EQ(tests::errors(checkfolder("in")),
              cannot("people.csv", "Faction, occupation", "people") +
                  cannot("events.csv", "Dates for event", "events") +
                  cannot("events.csv", "What happened on?", "events") + cannot("events.csv", "Nation, date", "events") +
                  cannot("events.csv", "Nation, group", "events") + cannot("events.csv", "Group, date", "events") +
                  cannot("events.csv", "Which nations were involved?", "events"));
    writefolder("in", "", "V,1,,,,D,,G,N,,P,1,10,\n");
    EXPECT_EQ(tests::errors(checkfolder("in")),
              "in/people.csv:1: error: only 0 people; a question takes five, so give five at least\n"
              "in/events.csv:1: error: only 1 event; a question takes five, so give five at least\n");
}

TEST_F(Check, TellsWhereAFileIsWrong)
{
    // Numbers on lines of their own move the records down.
    const std::string item = "\n\n1\n0\n1, 0\n";
    writefile("X.bd3", "2\n1\n\n" + item +
                           "D\n\n\n1, 2\n\n0, 0\n\nTwo\n5, 3\n4, 0\nE\n\n\n0, -1\n\n0, 0\n\n\nWar\n"
                           "2, 0\n2, 0\nF\n\n\n1, 1, 1\n../x.png\n0, "
                           "0\n\n1\n\nRome\n0\n\n1\n\nPoet\n0\n\n1\n\nWar\n0\n\n1\n\nGaul\n0\n");
    std::string records;
    for (const Finding& finding : checkfile("X.bd3")) {
        records += finding.severity == Severity::error && finding.line > 2 ? findingline(finding) + '\n' : "";
    }
    EXPECT_EQ(records, "X.bd3:5: error: name: the name is empty\n"
                       "X.bd3:5: error: occupation: 2 lies outside the list, which ends at 1\n"
                       "X.bd3:16: error: date2: 4 lies before the first date, 5\n"
                       "X.bd3:16: error: kind1: 3 is no kind of date; the kinds are 0, 1 and 2\n"
                       "X.bd3:16: error: occupation: -1 lies outside the list, which ends at 1\n"
                       "X.bd3:27: error: picture: ../x.png: no part of it may be empty or begin with a dot\n");
}

} // namespace brindor::authoring
