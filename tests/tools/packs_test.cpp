#include "authoring/packs.h"
#include "authoring/zipfile.h"
#include "tools/sample.h"

namespace brindor::authoring {

using namespace tests;

// The other programs are scripts here: one draws a map, the other tells what it sees of the game's folder.
class Packs : public ProgramTest {
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
        writegood("", "Own,1,,,,D,,War,Rome,,,,,own.bmp\n", "My voyages");
        writefile("My voyages/own.bmp", bmpfile(40, 30));
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
    const auto played = [this](const std::string& period) {
        std::string made;
        const auto ready = [&made](const Report& report) { made = errors(report) + '\n'; };
        const std::string faults = errors(playtimeline("My voyages", period, places, ready));
        return made + (faults.empty() ? contentof("seen") : faults);
    };
    EXPECT_EQ(played("classic"),
              "Classic.bd3: 10 people, 11 events; 9 maps are not drawn yet, which mapmaker maps does\n"
              "./Classic.bd3\n./brindor\n./classic/maps/iron-pillar.png\n./classic/own.bmp\n");
    EXPECT_EQ(contentof("game/Modern.bd3"), "0 the shipped one");
    fs::remove("tools/mapmaker");
    EXPECT_EQ(played(""), "Modern.bd3: 10 people, 11 events; 10 maps are not drawn yet, which mapmaker maps does. The "
                          "maps are left out: tools/mapmaker is not there; it is built where Qt is installed\n"
                          "./Modern.bd3\n./brindor\n./modern/own.bmp\n");
    program("game/brindor", "exit 3");
    EXPECT_TRUE(played("").ends_with("\ngame/brindor: error: ended with a failure, 3\n"));
    fs::remove("game/brindor");
    EXPECT_EQ(played(""), "game/brindor: error: is not there, so the timeline cannot be played; build the game with "
                          "scripts/play, or name its folder with --game\n");
}

TEST_F(Packs, WhatOnePacksAnotherAdds)
{
    EXPECT_EQ(errors(packtimeline("My voyages", "v.zip", false, places)),
              "v.zip: 10 people, 11 events, 2 pictures; to be added to a game by timelinemaker add v.zip");
    EXPECT_EQ(periodlist("or"), "Ancient, Classic, Medieval or Modern");
    packtimeline("My voyages", "again.zip", false, places);
    EXPECT_EQ(contentof("again.zip"), contentof("v.zip"));
    EXPECT_EQ(errors(addpack("v.zip", "", false, places)),
              "game/Modern.bd3: error: stands there already and is another timeline; name another place, or replace it "
              "with --overwrite\n");
    EXPECT_FALSE(fs::exists("game/my-voyages"));
    EXPECT_EQ(errors(addpack("v.zip", "MEDIEVAL", false, places)),
              "v.zip is now the timeline Medieval.bd3 in game: 10 people, 11 events. In the game choose it by Setup, "
              "View/Select.");
    EXPECT_EQ(contentof("game/my-voyages/own.bmp"), bmpfile(40, 30));
    EXPECT_TRUE(contentof("game/Medieval.bd3").starts_with("10 -- Number of people"));
    EXPECT_EQ(contentof("game/Modern.bd3"), "0 the shipped one");
}

TEST_F(Packs, AStrangersPackIsTakenForHostile)
{
    packtimeline("My voyages", "v.zip", false, places);
    const ZipContent good = unzipped(contentof("v.zip"), 1 << 20).value.value_or(ZipContent());
    const std::string timeline = good.at("My voyages.bd3");
    std::string outside = timeline;
    outside.replace(outside.find("my-voyages/own.bmp"), 18, "../x.bmp");
    const std::string dots = "no part of it may be empty or begin with a dot\n";
    const struct {
        const char* name;
        std::string content;
        std::string said;
    } cases[] = {
        {"../.bashrc", "x", " is not added: \"../.bashrc\" in it is no picture's name; " + dots},
        {"brindor", "x",
         " is not added: \"brindor\" in it is no picture's name; it must end in png, jpg, jpeg, bmp or gif\n"},
        {"TITLE.BMP", "BM", " is not added: \"TITLE.BMP\" in it does not lie in the timeline's folder, my-voyages/\n"},
        {"Other.bd3", timeline, " is not added: it must hold one timeline (.bd3), not in a folder\n"},
        {"My voyages.bd3", "1\n", " is not added, since the game cannot read its timeline: "},
        {"My voyages.bd3", outside, " is not added: the event Own names a picture \"../x.bmp\"; " + dots},
        {"my-voyages/own.bmp", "#!/bin/sh",
         "game/my-voyages/own.bmp: error: is not written, since the content is no picture\n"},
    };
    for (const auto& [name, content, said] : cases) {
        ZipContent files = good;
        files[name] = content;
        writefile("evil.zip", zipped(files).value.value_or(""));
        const std::string wanted = (said.front() == ' ' ? "evil.zip: error:" : "") + said;
        EXPECT_EQ(errors(addpack("evil.zip", "Classic", true, places)).substr(0, wanted.size()), wanted);
        EXPECT_FALSE(fs::exists("game/Classic.bd3")) << name;
    }
    writefile("evil.zip", "no zip");
    EXPECT_NE(errors(addpack("evil.zip", "", true, places)).find("cannot be unpacked"), std::string::npos);
    const std::string bomb = zipped({{"a.png", std::string(1 << 20, ' ')}}).value.value_or("");
    EXPECT_EQ(unzipped(bomb, 100000).reason, "it holds too much");
}

} // namespace brindor::authoring
