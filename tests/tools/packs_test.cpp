#include "authoring/packs.h"
#include "authoring/zipfile.h"
#include "support/programtest.h"
#include "tools/sample.h"

#include <gtest/gtest.h>

namespace brindor::authoring {

namespace fs = std::filesystem;
using tests::contentof;
using tests::errors;
using tests::report;
using tests::writefile;
using tests::writefolder;

// The other programs are scripts here: one draws a map, the other tells what it sees of the game's folder.
class Packs : public tests::ProgramTest {
protected:
    Packs()
    {
        fs::create_directory("tools");
        fs::create_directory("game");
        program("tools/mapmaker", "for m in \"$3\"/*.bd3; do p=$(basename \"$4\" .bd3 | tr 'A-Z ' a-z-); "
                                  "mkdir -p \"$3/$p/maps\"; printf 'BM' >\"$3/$p/maps/iron-pillar.png\"; done");
        program("game/brindor",
                "cd \"$(dirname \"$0\")\" && find . -type f | sort >\"" + folder.path().string() + "/seen\"");
        writefile("game/Modern.bd3", "0 the shipped one");
        writefile("game/bdq.INI", "settings");
        writefolder("My voyages", tests::goodpeople(), tests::goodevents() + "Own,1,,,,D,,War,Rome,,,,,own.bmp\n");
        writefile("My voyages/own.bmp", tests::bmpfile(40, 30));
    }

    static void program(const std::string& file, const std::string& script)
    {
        writefile(file, "#!/bin/sh\n" + script + "\n");
        fs::permissions(file, fs::perms::owner_all);
    }

    Places places{"tools", "game"};
};

TEST_F(Packs, APlayedTimelineHasAGameOfItsOwn)
{
    std::string made;
    const auto ready = [&made](const Report& report) { made = errors(report.findings) + report.said; };
    EXPECT_EQ(report(playtimeline("My voyages", "classic", places, ready).findings), "");
    EXPECT_EQ(made, "Classic.bd3: 10 people, 11 events; 9 maps are not drawn yet, which mapmaker maps does");
    EXPECT_EQ(contentof("seen"), "./Classic.bd3\n./brindor\n./classic/maps/iron-pillar.png\n./classic/own.bmp\n");
    EXPECT_EQ(contentof("game/Modern.bd3"), "0 the shipped one");
    fs::remove("tools/mapmaker");
    EXPECT_EQ(report(playtimeline("My voyages", "", places, ready).findings), "");
    EXPECT_EQ(
        made,
        "Modern.bd3: 10 people, 11 events; 10 maps are not drawn yet, which mapmaker maps does. The maps are left "
        "out: tools/mapmaker is not there; it is built where Qt is installed");
    EXPECT_EQ(contentof("seen"), "./Modern.bd3\n./brindor\n./modern/own.bmp\n");
    fs::remove("game/brindor");
    EXPECT_EQ(report(playtimeline("My voyages", "", places, ready).findings),
              "game/brindor: error: is not there, so the timeline cannot be played; build the game with scripts/play, "
              "or name "
              "its folder with --game\n");
}

TEST_F(Packs, WhatOnePacksAnotherAdds)
{
    const Report packed = packtimeline("My voyages", "v.zip", false, places);
    EXPECT_EQ(errors(packed.findings) + packed.said,
              "v.zip: 10 people, 11 events, 2 pictures; to be added to a game by timelinemaker add v.zip");
    const std::string bytes = contentof("v.zip");
    packtimeline("My voyages", "again.zip", false, places);
    EXPECT_EQ(contentof("again.zip"), bytes);
    EXPECT_EQ(
        errors(addpack("v.zip", "", false, places).findings),
        "game/Modern.bd3: error: stands there already and is another timeline; name another place, or replace it with "
        "--overwrite\n");
    EXPECT_FALSE(fs::exists("game/my-voyages"));
    EXPECT_EQ(addpack("v.zip", "MEDIEVAL", false, places).said,
              "v.zip is now the timeline Medieval.bd3 in game: 10 people, 11 events. In the game choose it by Setup, "
              "View/Select.");
    EXPECT_EQ(contentof("game/my-voyages/own.bmp"), tests::bmpfile(40, 30));
    EXPECT_TRUE(contentof("game/Medieval.bd3").starts_with("10 -- Number of people"));
    EXPECT_EQ(contentof("game/Modern.bd3"), "0 the shipped one");
}

TEST_F(Packs, AStrangersPackIsTakenForHostile)
{
    packtimeline("My voyages", "v.zip", false, places);
    const ZipContent good = unzipped(contentof("v.zip"), 1 << 20).value.value_or(ZipContent());
    ASSERT_EQ(good.size(), 3U);
    const std::string timeline = good.at("My voyages.bd3");
    const auto swapped = [&timeline](const std::string& name) {
        std::string text = timeline;
        return text.replace(text.find("my-voyages/own.bmp"), 18, name);
    };
    struct Case {
        const char* name;
        std::string content;
        std::string said;
    };
    const std::vector<Case> cases = {
        {"../.bashrc", "x",
         "is not added: \"../.bashrc\" in it is no picture's name; no part of it may be empty or begin with "
         "a dot"},
        {"/etc/x.png", "x",
         "is not added: \"/etc/x.png\" in it is no picture's name; it must lie in the folder or below it, as "
         "ships/whydah.png"},
        {"brindor", "x",
         "is not added: \"brindor\" in it is no picture's name; it must end in png, jpg, jpeg, bmp or gif"},
        {"TITLE.BMP", "BM", "is not added: \"TITLE.BMP\" in it does not lie in the timeline's folder, my-voyages/"},
        {"Other.bd3", timeline, "is not added: it must hold one timeline (.bd3), not in a folder"},
        {"My voyages.bd3", "1\n", "is not added, since the game cannot read its timeline: "},
        {"My voyages.bd3", swapped("../x.bmp"),
         "is not added: the event Own names a picture \"../x.bmp\"; no part of it may be empty or begin with a dot"},
    };
    for (const Case& c : cases) {
        ZipContent files = good;
        files[c.name] = c.content;
        writefile("evil.zip", zipped(files).value.value_or(""));
        const std::string said = report(addpack("evil.zip", "Classic", true, places).findings);
        EXPECT_NE(said.find("evil.zip: error: " + c.said), std::string::npos) << said;
        EXPECT_FALSE(fs::exists("game/Classic.bd3")) << c.name;
    }
    ZipContent files = good;
    files["my-voyages/own.bmp"] = "#!/bin/sh";
    writefile("evil.zip", zipped(files).value.value_or(""));
    EXPECT_EQ(report(addpack("evil.zip", "Classic", true, places).findings),
              "game/my-voyages/own.bmp: error: is not written, since the content is no picture\n");
    writefile("evil.zip", "no zip");
    EXPECT_NE(report(addpack("evil.zip", "", true, places).findings).find("cannot be unpacked"), std::string::npos);
    const std::string bomb = zipped({{"a.png", std::string(1 << 20, ' ')}}).value.value_or("");
    EXPECT_LT(bomb.size(), 10000U);
    EXPECT_EQ(unzipped(bomb, 100000).reason, "it holds too much");
}

} // namespace brindor::authoring
