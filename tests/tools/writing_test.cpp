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
    const std::string dots = "no part of it may be empty or begin with a dot";
    const struct {
        std::string name;
        std::string content;
        bool overwrite;
        std::string said; // a part of it; empty: written
    } cases[] = {
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
    EXPECT_EQ(errors(maketimeline(sample("odd"), "one/Classic.bd3", false)),
              "Classic.bd3: 7 people, 8 events; 6 maps are not drawn yet, which mapmaker maps does");
    EXPECT_EQ(contentof("one/Classic.bd3"), contentof("odd/Classic.bd3"));
    fs::create_directories("one/classic/maps");
    writefile("one/classic/maps/sack-of-luoyang.png", "\x89PNG\r\n\x1A\n a map");
    fs::create_directory("odd/maps");
    writefile("odd/maps/sack-of-luoyang.png", "another");
    const std::string other = ".csv: error: stands there already and is another spreadsheet; name another place, or "
                              "replace it with --overwrite\n";
    EXPECT_EQ(errors(exporttimeline("one/Classic.bd3", "odd", false)),
              "odd/maps/sack-of-luoyang.png: error: stands there already and is no picture, so it is not replaced\n"
              "odd/people" +
                  other + "odd/events" + other);
    EXPECT_EQ(errors(exporttimeline("one/Classic.bd3", "deep/copy", false)), "deep/copy: 7 people, 8 events");
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
              "deep/copy/events.csv:3: error: column 14 (picture): own/a.bmp cannot be opened: a link leads out of the "
              "folder\n");
}

TEST_F(WritingTest, ExportTakesWhatAFileHolds)
{
    EXPECT_EQ(errors(exporttimeline(sample("old") + "/Old.bd3", "out", false)), "out: 1 person, 1 event");
    EXPECT_EQ(contentof("out/people.csv"), contentof("old/people.csv"));
    EXPECT_EQ(contentof("out/events.csv"), contentof("old/events.csv"));
    EXPECT_EQ(errors(exporttimeline("Missing.bd3", "out", false)),
              "Missing.bd3: error: cannot be opened: No such file or directory. Put the file into the program's "
              "folder, or choose "
              "another period.\n");
    EXPECT_EQ(errors(exporttimeline(sample("broken") + "/X.bd3", "evil", false)),
              "evil/text.bmp: error: is not written, since the content is no picture\n"
              "broken/X.bd3:86: error: picture: ../x.png: no part of it may be empty or begin with a dot\n");
    EXPECT_FALSE(fs::exists("evil"));
}

} // namespace brindor::authoring
