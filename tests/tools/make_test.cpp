#include "authoring/commands.h"
#include "authoring/pictures.h"
#include "base/files.h"
#include "support/programtest.h"
#include "tools/sample.h"

#include <gtest/gtest.h>

namespace brindor::authoring {

namespace fs = std::filesystem;
using tests::contentof;
using tests::eventsheader;
using tests::peopleheader;
using tests::report;
using tests::writefile;
using tests::writefolder;

class Make : public tests::ProgramTest {
protected:
    // Nothing is made, and what is said is `expected`.
    void refuses(const std::string& expected, const std::string& about)
    {
        EXPECT_EQ(report(maketimeline("in", "Out.bd3")), expected) << about;
        EXPECT_FALSE(fs::exists("Out.bd3")) << about;
    }
};

TEST_F(Make, WritesTheWholeFile)
{
    writefolder("in",
                "Later,1300,reign,1310,ca.,\"First, and best.\",Second.,Rome,Poet\n"
                "Early,-44,,,,One.,,Éire,Poet\n",
                "Small war,1200,,,,A,B,War,Rome,,Here,1,2,\n"
                "Big war,1200,ca.,,,C,,War,Rome,Gaul,There,-1.5,-2,\n");
    EXPECT_EQ(report(maketimeline("in", "Medieval.bd3")), "");
    EXPECT_EQ(contentof("Medieval.bd3"), "2 -- Number of people in file\n"
                                         "2 -- Number of events in file\n"
                                         "==== PEOPLE\n"
                                         "** 1\nEarly\n-44, 0\n-44, 0\nOne.\n\n\n1, 1\n\n0, 0\n"
                                         "** 2\nLater\n1300, 2\n1310, 1\nFirst, and best.\nSecond.\n\n2, 1\n\n0, 0\n"
                                         "+++ EVENTS\n"
                                         "++ 1\nBig war\n1200, 1\n1200, 1\nC\n\n\n1, 2, 1\nmaps/medieval-big-war.png\n"
                                         "640, 480\n"
                                         "++ 2\nSmall war\n1200, 0\n1200, 0\nA\nB\n\n1, 2, 2\n"
                                         "maps/medieval-small-war.png\n640, 480\n"
                                         "=== FACTIONS\n2\n-- 1\nÉire\n1\n-- 2\nRome\n1\n"
                                         "=== OCCUPATIONS\n1\n-- 1\nPoet\n2\n"
                                         "=== GROUPS\n1\n-- 1\nWar\n2\n"
                                         "=== NATIONS\n2\n-- 1\nGaul\n1\n-- 2\nRome\n2\n");
}

TEST_F(Make, TakesWhatSpreadsheetsSave)
{
    fs::create_directory("a");
    fs::create_directory("b");
    const std::string person = "\"Hypatia\",360,ca.,415,,\"Taught, in Alexandria.\",,Egypt,Scholar";
    const std::string event = "War,1,,,,A,,War,Rome,,Rome,41.9,12.5,";
    writefile("a/people.csv", peopleheader() + person + '\n');
    writefile("a/events.csv", eventsheader() + event + '\n');
    // A mark, CR LF, rows of nothing but commas, empty columns behind the last, the last empty field left out.
    const std::string header = peopleheader();
    writefile("b/people.csv",
              "\xEF\xBB\xBF" + header.substr(0, header.size() - 1) + ",,\r\n,,,,,,,,,,\r\n" + person + ",,\r\n\r\n");
    writefile("b/events.csv", eventsheader() + "\r\n" + event.substr(0, event.size() - 1));
    EXPECT_EQ(report(maketimeline("a", "A.bd3")), "");
    EXPECT_EQ(report(maketimeline("b", "b/A.bd3")), "");
    EXPECT_EQ(contentof("A.bd3"), contentof("b/A.bd3"));
}

TEST_F(Make, RefusesBadPeople)
{
    struct Case {
        std::string row; // of people.csv, behind a good one
        std::string text;
    };
    const std::vector<Case> cases = {
        {"A,12x,,,,D,,F,O", "column 2 (date1): \"12x\" is not a whole number"},
        {"A,,,,,D,,F,O", "column 2 (date1): a year is missing"},
        {"A,1,,32768,,D,,F,O", "column 4 (date2): \"32768\" is outside -32768 to 32767"},
        {"A,1,about,,,D,,F,O", "column 3 (kind1): \"about\" is no kind of date; leave it empty or write ca. or reign"},
        {"A,1,,2,CA,D,,F,O", "column 5 (kind2): \"CA\" is no kind of date; leave it empty or write ca. or reign"},
        {"A,5,,4,,D,,F,O", "column 4 (date2): 4 lies before the first date, 5"},
        {",5,,,,D,,F,O", "column 1 (name): the name is empty"},
        {"GÖOD,5,,,,D,,F,O", "column 1 (name): \"GÖOD\" stands at line 2 too"},
        {"A,5,,,,D\xE9,,F,O", "column 6 (desc1): the text is not UTF-8; save the file with the character set UTF-8"},
        {"A,5,,,,D,\"two\nlines\",F,O", "column 7 (desc2): the text holds a line break; it must be one line"},
        {"A,5,,,,D,,F", "8 fields where 9 belong; a text with a comma in it must stand in quotes"},
        {"A,5,,,,D, and more,,F,O", "10 fields where 9 belong; a text with a comma in it must stand in quotes"},
        {"A,5,,,,\"D,,F,O", "column 6 (desc1): the quote that opens this text is never closed"},
        {"A,5,,,,D \"x\",,F,O",
         "column 6 (desc1): a quote inside a text must be doubled, and the whole text must stand in quotes"},
    };
    for (const Case& c : cases) {
        writefolder("in", "Good,1,,,,D,,F,O\n" + c.row + '\n', "");
        refuses("in/people.csv:3: error: " + c.text + '\n', c.row);
    }
}

TEST_F(Make, RefusesBadEvents)
{
    struct Case {
        std::string end; // of a row of events.csv, from nation2 on
        std::string text;
    };
    const std::string missing = "missing; a map needs place, latitude and longitude";
    const std::vector<Case> cases = {
        {",P,1,,", "column 13 (longitude): " + missing},
        {",,1,2,", "column 11 (place): " + missing},
        {",P,90.5,2,", "column 12 (latitude): \"90.5\" is no number of degrees from -90 to 90, as 50.91"},
        {",P,1,-181,", "column 13 (longitude): \"-181\" is no number of degrees from -180 to 180, as 50.91"},
        {",P,\"50,9\",2,", "column 12 (latitude): \"50,9\" is no number of degrees from -90 to 90, as 50.91"},
        {",P,nan,2,", "column 12 (latitude): \"nan\" is no number of degrees from -90 to 90, as 50.91"},
        {",,,,own.png", "column 14 (picture): own.png is missing"},
        {",,,,text.png", "column 14 (picture): in/text.png is no picture in a known form; use png, jpg, bmp or gif"},
        {",,,,huge.bmp", "column 14 (picture): in/huge.bmp is no picture in a known form; use png, jpg, bmp or gif"},
        {",,,,../own.bmp",
         "column 14 (picture): \"../own.bmp\" must name a file in the folder or below it, with / between the parts"},
        {",,,,/tmp/own.bmp",
         "column 14 (picture): \"/tmp/own.bmp\" must name a file in the folder or below it, with / between the parts"},
        {",,,,a\\own.bmp",
         "column 14 (picture): \"a\\own.bmp\" must name a file in the folder or below it, with / between the parts"},
    };
    writefolder("in", "", "");
    writefile("in/text.png", "This is no picture.");
    writefile("in/huge.bmp", tests::bmpfile(40000, 10));
    writefile("own.bmp", tests::bmpfile(3, 2));
    for (const Case& c : cases) {
        writefile("in/events.csv", eventsheader() + "\nWar,1,,,,D,,G,N," + c.end + '\n');
        refuses("in/events.csv:3: error: " + c.text + '\n', c.end);
    }
}

TEST_F(Make, RefusesWholeFiles)
{
    const std::string columns = "name,date1,kind1,date2,kind2,desc1,desc2,faction,occupation";
    struct Case {
        std::string people;
        std::string text;
    };
    const std::vector<Case> cases = {
        {"", ":1: error: the file is empty; its first row must be " + columns},
        {"\n\nname,date\n", ":3: error: the first row must be " + columns},
        {"name;date1\n", ":1: error: the first row must be " + columns +
                             "; save the file with commas between the columns, not semicolons"},
        {"\"name", ":1: error: column 1 (name): the quote that opens this text is never closed"},
    };
    writefolder("in", "", "");
    for (const Case& c : cases) {
        writefile("in/people.csv", c.people);
        refuses("in/people.csv" + c.text + '\n', c.people);
    }
    fs::remove("in/people.csv");
    fs::remove("in/events.csv");
    fs::create_directory("in/events.csv");
    refuses("in/people.csv: error: cannot be read: No such file or directory\n"
            "in/events.csv: error: cannot be read: Not a regular file\n",
            "no files");
}

TEST_F(Make, TellsAllFaultsOfAllRows)
{
    writefolder("in", "A,x,,y,,D,,F,O\nB,1,,,,\"D\nE\",,F,O\nC,1,z,,,D,,F,O\n", "War,1,,,,D,,G,N,,P,1,x,\n");
    refuses("in/people.csv:2: error: column 2 (date1): \"x\" is not a whole number\n"
            "in/people.csv:2: error: column 4 (date2): \"y\" is not a whole number\n"
            "in/people.csv:3: error: column 6 (desc1): the text holds a line break; it must be one line\n"
            "in/people.csv:5: error: column 3 (kind1): \"z\" is no kind of date; leave it empty or write ca. or reign\n"
            "in/events.csv:2: error: column 13 (longitude): \"x\" is no number of degrees from -180 to 180, as 50.91\n",
            "all");
}

TEST_F(Make, GivesEachMapANameOfItsOwn)
{
    std::vector<EventForm> forms(5);
    const std::vector<std::string> names = {"Fall of Rome!", "Fall of Rome", "fall-of-rome", "Elsewhere", "Nowhere"};
    for (std::size_t i = 0; i < forms.size(); ++i) {
        forms[i].name = names[i];
        forms[i].latitude = 0;
        forms[i].longitude = 0;
    }
    forms[3].picture = "maps/x-fall-of-rome-2.png";
    forms[4].latitude.reset();
    EXPECT_EQ(picturenames(forms, "x"),
              (std::vector<std::string>{"maps/x-fall-of-rome.png", "maps/x-fall-of-rome-3.png",
                                        "maps/x-fall-of-rome-4.png", "maps/x-fall-of-rome-2.png", ""}));
    EXPECT_EQ(mapprefix("game/My Own.v2.bd3"), "my-own-v2");
    EXPECT_EQ(mapprefix("Medieval.bd3"), "medieval");
}

TEST_F(Make, PutsOwnPicturesBesideTheFile)
{
    writefolder("in", "", "War,1,,,,D,,G,N,,,,,pics/own.bmp\nPeace,2,,,,D,,G,N,,,,,beside.bmp\n");
    fs::create_directory("in/pics");
    fs::create_directory("out");
    writefile("in/pics/own.bmp", tests::bmpfile(30, 20));
    writefile("out/beside.bmp", tests::bmpfile(7, 5));
    EXPECT_EQ(report(maketimeline("in", "out/X.bd3")), "");
    EXPECT_EQ(contentof("out/pics/own.bmp"), tests::bmpfile(30, 20));
    EXPECT_NE(contentof("out/X.bd3").find("\npics/own.bmp\n30, 20\n"), std::string::npos);
    EXPECT_NE(contentof("out/X.bd3").find("\nbeside.bmp\n7, 5\n"), std::string::npos);

    writefile("in/pics/own.bmp", tests::bmpfile(31, 20)); // a new one takes the old one's place
    EXPECT_EQ(report(maketimeline("in", "out/X.bd3")), "");
    EXPECT_EQ(contentof("out/pics/own.bmp"), tests::bmpfile(31, 20));
}

// Whatever file call fails, the old timeline stands whole or the new one does, and nothing is left beside it.
TEST_F(Make, LeavesNoHalfWrittenFile)
{
    writefolder("in", tests::goodpeople(), tests::goodevents());
    ASSERT_EQ(report(maketimeline("in", "New.bd3")), "");
    const std::string whole = contentof("New.bd3");
    fs::create_directory("out");
    for (const bool forever : {false, true}) {
        bool succeeded = false;
        int failures = 0;
        for (std::int64_t n = 1; !succeeded; ++n) {
            ASSERT_LT(n, 100);
            writefile("out/New.bd3", "old");
            faultplan = {n, forever, 0};
            const Findings findings = maketimeline("in", "out/New.bd3");
            const bool hit = faultplan.calls >= n;
            faultplan = {};
            succeeded = !haserrors(findings);
            failures += succeeded ? 0 : 1;
            EXPECT_EQ(contentof("out/New.bd3"), succeeded ? whole : "old") << n;
            EXPECT_EQ(std::distance(fs::directory_iterator("out"), fs::directory_iterator()), 1) << n;
            if (hit && !succeeded) {
                EXPECT_NE(report(findings).find("Input/output error"), std::string::npos) << report(findings);
            }
            // A failed look for a map beside the file does not matter; go on to the calls behind it.
            succeeded = succeeded && !hit;
        }
        EXPECT_GE(failures, 9); // open and read of two files; open, write, flush, close, rename of one
    }
}

} // namespace brindor::authoring
