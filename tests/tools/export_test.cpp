#include "authoring/commands.h"
#include "support/programtest.h"
#include "tools/sample.h"

#include <gtest/gtest.h>

namespace brindor::authoring {

namespace fs = std::filesystem;
using tests::contentof;
using tests::report;
using tests::writefile;
using tests::writefolder;

class Export : public tests::ProgramTest {};

TEST_F(Export, MakeExportMakeGivesTheSameBytes)
{
    writefolder("in",
                tests::goodpeople() + "\"Comma, the \"\"Quoted\"\"\",-5,ca.,-5,,\"One, two\",,,\n"
                                      "Reign,10,reign,12,,D,,Éire,Poet\n",
                tests::goodevents() + "Own,1,,,,D,,G,N,M,,,,own/a.bmp\nNone,2,,2,ca.,D,,,,,,,,\n"
                                      "Battle of Edessa!,260,,,,D,,War,Rome,,Edessa,37,38,\n");
    fs::create_directory("in/own");
    writefile("in/own/a.bmp", tests::bmpfile(30, 20));
    fs::create_directories("one/maps");
    fs::create_directory("two");
    ASSERT_EQ(report(maketimeline("in", "one/Classic.bd3")), "");
    writefile("one/maps/classic-sack-of-luoyang.png", "a map");
    ASSERT_EQ(report(exporttimeline("one/Classic.bd3", "deep/copy", false)), "");
    ASSERT_EQ(report(maketimeline("deep/copy", "two/Other.bd3")), "");
    EXPECT_EQ(contentof("two/Other.bd3"), contentof("one/Classic.bd3"));
    EXPECT_EQ(contentof("two/own/a.bmp"), tests::bmpfile(30, 20));
    EXPECT_EQ(contentof("two/maps/classic-sack-of-luoyang.png"), "a map");
}

TEST_F(Export, WritesTheTwoFiles)
{
    writefile("Old.bd3", "1\n1\n\n\nAl\xE9, the\n5, 2\n5\n2\nOne\nTwo\nThree\n1, 0\n p.bmp\n1, 1\n\n"
                         "\nWar\n-3, 1\n4, 7\nA \"b\"\n\n\n1, 2, 1\n\n0, 0\n"
                         "\n1\n\nRome\n9\n\n0\n\n1\n\nState\n9\n\n2\n\nGaul\n9\n\nRome\n9\n");
    EXPECT_EQ(report(exporttimeline("Old.bd3", "out", false)), "");
    EXPECT_EQ(contentof("out/people.csv"),
              "\xEF\xBB\xBF" + tests::peopleheader() + "\"Alé, the\",5,reign,,,One,Two,Rome,\n");
    EXPECT_EQ(contentof("out/events.csv"),
              "\xEF\xBB\xBF" + tests::eventsheader() + "War,-3,ca.,4,7,\"A \"\"b\"\"\",,State,Rome,Gaul,,,,\n");
}

TEST_F(Export, ReplacesNothingUnlessTold)
{
    writefolder("in", tests::goodpeople(), tests::goodevents());
    ASSERT_EQ(report(maketimeline("in", "X.bd3")), "");
    EXPECT_EQ(report(exporttimeline("X.bd3", "in", false)),
              "in/people.csv: error: stands there already; name another folder, or replace it with --overwrite\n"
              "in/events.csv: error: stands there already; name another folder, or replace it with --overwrite\n");
    EXPECT_EQ(contentof("in/people.csv"), tests::peopleheader() + tests::goodpeople());
    EXPECT_EQ(report(exporttimeline("X.bd3", "in", true)), "");
    EXPECT_NE(contentof("in/events.csv").find(",maps/x-iron-pillar.png\n"), std::string::npos);
}

TEST_F(Export, TellsWhatTheReaderRefuses)
{
    EXPECT_EQ(
        report(exporttimeline("Missing.bd3", "out", false)),
        "Missing.bd3: error: cannot be opened: No such file or directory. Put the file into the program's folder, "
        "or choose another period.\n");
    writefile("Bad.bd3", "1\n0\n==== PEOPLE\n** 1\nName\n12, x\n");
    EXPECT_EQ(
        report(exporttimeline("Bad.bd3", "out", false)),
        "Bad.bd3:6: error: \"x\" is not a whole number. Correct the first date and its kind and choose the period "
        "again.\n");
    EXPECT_FALSE(fs::exists("out"));
}

// A picture's name in an old file can be anything; nothing is written outside the folder.
TEST_F(Export, CopiesNoPictureThatLeadsOut)
{
    fs::create_directories("game");
    writefile("secret.bmp", "x");
    writefile("game/X.bd3", "0\n1\n\n\n\nWar\n1, 0\n1, 0\nA\n\n\n0, 0, 0\n../secret.bmp\n0, 0\n\n0\n\n0\n\n0\n\n0\n");
    EXPECT_EQ(report(exporttimeline("game/X.bd3", "deep/out", false)), "");
    EXPECT_FALSE(fs::exists("deep/secret.bmp"));
}

} // namespace brindor::authoring
