#include "authoring/commands.h"
#include "authoring/eventpictures.h"
#include "base/files.h"
#include "support/programtest.h"
#include "tools/sample.h"

#include <chrono>
#include <gtest/gtest.h>

namespace brindor::authoring {

namespace fs = std::filesystem;
using tests::contentof;
using tests::errors;
using tests::writefile;
using tests::writefolder;

class Make : public tests::ProgramTest {
protected:
    // The findings about good files with rows added behind them, at line 12.
    static std::string made(const std::string& peoplerows, const std::string& eventrows)
    {
        writefolder("in", tests::goodpeople() + peoplerows, tests::goodevents() + eventrows);
        return errors(maketimeline("in", "Out.bd3", false).findings);
    }
};

TEST_F(Make, WritesWhatTheRowsSay)
{
    writefolder("in", tests::goodpeople() + "\"Comma, the\",1300,reign,1310,ca.,First.,Second.,Éire,Poet\n",
                tests::goodevents() + "Small war,-12,ca.,,,A,B,War,Rome,,Here,-1.5,2,\n");
    const Report report = maketimeline("in", "Classic.bd3", false);
    EXPECT_EQ(errors(report.findings), "");
    EXPECT_EQ(report.said, "Classic.bd3: 11 people, 11 events; 11 maps are not drawn yet, which mapmaker maps does");
    const std::string text = contentof("Classic.bd3");
    for (const char* block :
         {"** 11\nComma, the\n1300, 2\n1310, 1\nFirst.\nSecond.\n\n4, 1\n\n0, 0\n",
          "++ 1\nSmall war\n-12, 1\n-12, 1\nA\nB\n\n4, 5, 5\nclassic/maps/small-war.png\n640, 480\n",
          "-- 3\nEgypt\n2\n-- 4\nÉire\n1\n"}) {
        EXPECT_NE(text.find(block), std::string::npos) << block;
    }
}

TEST_F(Make, RefusesWhatCheckCallsAnError)
{
    struct Case {
        std::string row; // of people.csv
        std::string text;
    };
    const std::string quotes = "the whole text must stand in quotes";
    const std::vector<Case> cases = {
        {"A,,,,,D,,F,O", "column 2 (date1): a year is missing"},
        {"A,1,,32768,,D,,F,O", "column 4 (date2): \"32768\" is outside -32768 to 32767"},
        {"A,5,,4,,D,,F,O", "column 4 (date2): 4 lies before the first date, 5"},
        {",5,,,,D,,F,O", "column 1 (name): the name is empty"},
        {"HYPATÍA,5,,,,D,,F,O", "column 1 (name): \"HYPATÍA\" stands at line 2 too"},
        {"A,5,,,,D,\"two\nlines\",F,O", "column 7 (desc2): the text holds a line break; it must be one line"},
        {"A,5,,,,D,a\x01,F,O", "column 7 (desc2): the text holds a character that cannot be shown; type the text anew"},
        {"A,5,,,," + std::string(1 << 20, 'd') + ",,F,O",
         "column 6 (desc1): a text of 1048576 bytes is more than any screen shows"},
        {"A,5,,,,D, and more,,F,O", "10 fields where 9 belong; a text with a comma in it must stand in quotes"},
        {"A,5,,,,\"D,,F,O", "column 6 (desc1): the quote that opens this text is never closed"},
        {"A,5,,,,D \"x\",,F,O", "column 6 (desc1): a quote inside a text must be doubled, and " + quotes},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(made(c.row + '\n', ""), "in/people.csv:12: error: " + c.text + '\n') << c.row.substr(0, 80);
        EXPECT_FALSE(fs::exists("Out.bd3"));
    }
    const std::string missing = "missing; a map needs place, latitude and longitude";
    const std::vector<Case> events = {
        {",,P,1,,", "column 13 (longitude): " + missing},
        {",,,1,2,", "column 11 (place): " + missing},
        {",,,,,own.png", "column 14 (picture): own.png cannot be opened: No such file or directory"},
        {",,,,,text.png",
         "column 14 (picture): text.png is no picture in a known form; save it as png, jpg, bmp or gif"},
        {",,,,,../x.png", "column 14 (picture): ../x.png: no part of it may be empty or begin with a dot"},
    };
    fs::create_directory("in");
    writefile("in/text.png", "no picture");
    for (const Case& c : events) {
        EXPECT_EQ(made("", "War,1,,,,D,,War,Rome" + c.row + '\n'), "in/events.csv:12: error: " + c.text + '\n')
            << c.row;
        EXPECT_FALSE(fs::exists("Out.bd3"));
    }
    EXPECT_EQ(errors(maketimeline("nowhere", "Out.bd3", false).findings),
              "nowhere/people.csv: error: cannot be read: No such file or directory\n"
              "nowhere/events.csv: error: cannot be read: No such file or directory\n");
    EXPECT_EQ(errors(maketimeline("in", "in/people.csv", true).findings),
              "in/people.csv: error: is no name for a timeline; it must end in .bd3, as Modern.bd3\n");
    EXPECT_NE(contentof("in/people.csv").find("Hypatia"), std::string::npos);
}

TEST_F(Make, TellsAllFaultsOfAllRows)
{
    EXPECT_EQ(
        made("A,x,,y,,D,,F,O\nB,1,,,,\"D\nE\",,F,O\n", "War,1,,,,D,,G,N,,P,1,x,\n"),
        "in/people.csv:12: error: column 2 (date1): \"x\" is no year; write a whole number, as 1832, -44 or 44 BC\n"
        "in/people.csv:12: error: column 4 (date2): \"y\" is no year; write a whole number, as 1832, -44 or 44 BC\n"
        "in/people.csv:13: error: column 6 (desc1): the text holds a line break; it must be one line\n"
        "in/events.csv:12: error: column 13 (longitude): \"x\" is no number of degrees from -180 to 180; write it as "
        "50.91, south and west with a minus sign\n");
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
    forms[3].picture = "maps/fall-of-rome-2.png";
    forms[4].latitude.reset();
    EXPECT_EQ(picturenames(forms, "x"),
              (std::vector<std::string>{"x/maps/fall-of-rome.png", "x/maps/fall-of-rome-3.png",
                                        "x/maps/fall-of-rome-4.png", "x/maps/fall-of-rome-2.png", ""}));
    EXPECT_EQ(mapprefix("game/My Own.v2.BD3"), "my-own-v2");
    EXPECT_EQ(mapprefix("Medieval"), "medieval");

    std::vector<EventForm> many(32767, forms[1]);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(picturenames(many, "x").back(), "x/maps/fall-of-rome-32767.png");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
}

TEST_F(Make, PutsOwnPicturesIntoTheTimelinesFolder)
{
    EXPECT_EQ(made("", ""), "");
    fs::create_directory("in/pics");
    writefile("in/pics/own.bmp", tests::bmpfile(40, 30));
    const std::string row = "War,1,,,,D,,War,Rome,,,,,pics/own.bmp\n";
    writefolder("in", tests::goodpeople(), tests::goodevents() + row);
    EXPECT_EQ(errors(maketimeline("in", "out/X.bd3", false).findings), "");
    EXPECT_EQ(contentof("out/x/pics/own.bmp"), tests::bmpfile(40, 30));
    EXPECT_NE(contentof("out/X.bd3").find("\nx/pics/own.bmp\n40, 30\n"), std::string::npos);
}

// Whatever file call fails, the old timeline stands whole or the new one does, and nothing is left beside it.
TEST_F(Make, LeavesNoHalfWrittenFile)
{
    ASSERT_EQ(made("", ""), "");
    const std::string whole = contentof("Out.bd3");
    fs::create_directory("out");
    for (const bool forever : {false, true}) {
        bool succeeded = false;
        int failures = 0;
        for (std::int64_t n = 1; !succeeded; ++n) {
            ASSERT_LT(n, 100);
            writefile("out/Out.bd3", "1 old");
            faultplan = {n, forever, 0};
            const Findings findings = maketimeline("in", "out/Out.bd3", true).findings;
            const bool hit = faultplan.calls >= n;
            faultplan = {};
            succeeded = !haserrors(findings);
            failures += succeeded ? 0 : 1;
            EXPECT_EQ(contentof("out/Out.bd3"), succeeded ? whole : "1 old") << n;
            EXPECT_EQ(std::distance(fs::directory_iterator("out"), fs::directory_iterator()), 1) << n;
            if (hit && !succeeded) {
                EXPECT_NE(errors(findings).find("Input/output error"), std::string::npos) << errors(findings);
            }
            // A failed look for a map beside the file does not matter; go on to the calls behind it.
            succeeded = succeeded && !hit;
        }
        EXPECT_GE(failures, 9); // open and read of two files; open, write, flush, close, rename of one
    }
}

} // namespace brindor::authoring
