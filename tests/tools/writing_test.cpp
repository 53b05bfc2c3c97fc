#include "authoring/writing.h"
#include "tools/sample.h"

namespace brindor::authoring {

using namespace tests;
using WritingTest = ProgramTest;

TEST_F(WritingTest, OneProcedureDecidesWhatIsWritten)
{
    const std::string picture = bmpfile(4, 3);
    fs::create_directories("out/sub.png");
    fs::create_directory("outside");
    fs::create_directory_symlink("../outside", "out/link");
    fs::create_symlink("../outside/x.bmp", "out/link.bmp");
    writefile("outside/x.bmp", bmpfile(8, 6));
    writefile("out/old.bmp", bmpfile(8, 6));
    writefile("out/text.bmp", "the only copy of a diary");
    writefile("out/brindor", "the game");
    struct Case {
        std::string name;
        std::string content;
        bool overwrite;
        std::string said; // a part of it; empty: written
    };
    const std::string dots = "no part of it may be empty or begin with a dot";
    const std::vector<Case> cases = {
        {"new/a.bmp", picture, false, ""},
        {"new/a.bmp", picture, false, ""}, // the same again
        {"a.csv", "anything", false, ""},
        {"../x.bmp", picture, true, dots},
        {"maps/../../x.bmp", picture, true, dots},
        {"/tmp/x.bmp", picture, true, "it must lie in the folder or below it"},
        {"a\\b.bmp", picture, true, "its parts must be joined by /"},
        {".hidden/x.bmp", picture, true, dots},
        {"brindor", "MZ", true, "the tools write timelines"},
        {"run.sh", picture, true, "the tools write timelines"},
        {"a.bmp", "rm -r /", true, "the content is no picture"},
        {"a.bd3", "PK", true, "the content is no timeline"},
        {"link/x.bmp", picture, true, "a link leads out of out"},
        {"link.bmp", picture, false, "stands there already and is another picture"},
        {"old.bmp", picture, false, "stands there already and is another picture"},
        {"text.bmp", picture, true, "stands there already and is no picture"},
        {"sub.png", picture, true, "stands there already and is not replaced: Not a regular file"},
        {"old.bmp", picture, true, ""},
        {"link.bmp", picture, true, ""}, // the link, not what it leads to
    };
    for (const auto& [name, content, overwrite, said] : cases) {
        Findings findings;
        Writing writing(overwrite, findings);
        writing.add("out", name, content);
        EXPECT_EQ(writing.commit(), said.empty()) << name;
        EXPECT_NE((report(findings) + "\n").find(said), std::string::npos) << name << report(findings);
        EXPECT_EQ(contentof("out/" + name) == content, said.empty()) << name;
    }
    EXPECT_EQ(contentof("outside/x.bmp"), bmpfile(8, 6));

    Findings findings;
    Writing writing(true, findings);
    writing.add("out", "one.csv", "a");
    writing.add("out", "one.csv", "b");
    EXPECT_FALSE(writing.commit());
    EXPECT_FALSE(fs::exists("out/one.csv")); // all or nothing
}

TEST_F(WritingTest, MakeExportMakeGivesTheSameBytes)
{
    writegood("\"Comma, the \"\"Quoted\"\"\",-5,ca.,-5,,\"One, two\",,Éire,\n",
              "Own,1,,,,D,,G,N,M,,,,own/a.bmp\nBare,2,,2,ca.,D,,,,,,,,\n"
              "Battle of Edessa!,260,,,,D,,War,Rome,,Edessa,37,38,\n");
    fs::create_directories("in/own");
    fs::create_directories("in/maps");
    writefile("in/own/a.bmp", bmpfile(40, 30));
    ASSERT_FALSE(haserrors(maketimeline("in", "one/Classic.bd3", false).findings));
    fs::create_directories("one/classic/maps");
    writefile("one/classic/maps/sack-of-luoyang.png", "\x89PNG\r\n\x1A\n a map");
    writefile("in/maps/sack-of-luoyang.png", "another");
    const std::string other = ".csv: error: stands there already and is another spreadsheet; name another place, or "
                              "replace it with --overwrite\n";
    EXPECT_EQ(errors(exporttimeline("one/Classic.bd3", "in", false)),
              "in/maps/sack-of-luoyang.png: error: stands there already and is no picture, so it is not replaced\n"
              "in/people" +
                  other + "in/events" + other);
    EXPECT_EQ(errors(exporttimeline("one/Classic.bd3", "deep/copy", false)), "deep/copy: 11 people, 13 events");
    EXPECT_EQ(contentof("deep/copy/maps/sack-of-luoyang.png"), "\x89PNG\r\n\x1A\n a map");
    fs::remove_all("deep/copy/maps"); // which would have to be a whole picture
    // Another timeline with pictures of the same names has a folder of its own.
    for (const char* file : {"two/Classic.bd3", "one/Modern.bd3", "one/Classic.bd3"}) {
        EXPECT_FALSE(haserrors(maketimeline("deep/copy", file, false).findings)) << file;
    }
    EXPECT_EQ(contentof("two/Classic.bd3"), contentof("one/Classic.bd3"));
    EXPECT_EQ(contentof("two/classic/own/a.bmp"), bmpfile(40, 30));
    EXPECT_TRUE(fs::exists("one/modern/own/a.bmp"));
    fs::remove("deep/copy/own/a.bmp");
    fs::create_symlink("/etc/hostname", "deep/copy/own/a.bmp");
    EXPECT_EQ(errors(maketimeline("deep/copy", "three/Classic.bd3", false)),
              "deep/copy/events.csv:2: error: column 14 (picture): own/a.bmp cannot be opened: a link leads out of the "
              "folder\n");
}

TEST_F(WritingTest, ExportTakesWhatAFileHolds)
{
    writefile("Old.bd3", "1\n1\n\n\nAl\xE9, the\n5, 2\n5\n2\nOne\nTwo\nThree\n1, 0\n p.bmp\n1, 1\n\n"
                         "\nWar\n-3, 1\n4, 7\nA \"b\"\n\n\n1, 2, 1\n\n0, 0\n"
                         "\n1\n\nRome\n9\n\n0\n\n1\n\nState\n9\n\n2\n\nGaul\n9\n\nRome\n9\n");
    EXPECT_EQ(errors(exporttimeline("Old.bd3", "out", false)), "out: 1 person, 1 event");
    EXPECT_EQ(contentof("out/people.csv"), "\xEF\xBB\xBF" + peopleheader() + "\"Alé, the\",5,reign,,,One,Two,Rome,\n");
    EXPECT_EQ(contentof("out/events.csv"),
              "\xEF\xBB\xBF" + eventsheader() + "War,-3,ca.,4,7,\"A \"\"b\"\"\",,State,Rome,Gaul,,,,\n");
    EXPECT_EQ(errors(exporttimeline("Missing.bd3", "out", false)),
              "Missing.bd3: error: cannot be opened: No such file or directory. Put the file into the program's "
              "folder, or choose "
              "another period.\n");
    writefile("Evil.bd3", "0\n1\n\n\n\nWar\n3, 0\n3, 0\nA\n\n\n0, 0, 0\n../.bashrc\n0, 0\n\n0\n\n0\n\n0\n\n0\n");
    EXPECT_EQ(errors(exporttimeline("Evil.bd3", "evil", false)),
              "Evil.bd3:6: error: picture: ../.bashrc: no part of it may be empty or begin with a dot\n");
    EXPECT_FALSE(fs::exists("evil"));
}

} // namespace brindor::authoring
