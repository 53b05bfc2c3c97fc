#include "authoring/eventpictures.h"
#include "tools/sample.h"

namespace brindor::authoring {

using namespace tests;
using Make = ProgramTest;

TEST_F(Make, GivesEachMapANameOfItsOwnAndAtOnce)
{
    std::vector<EventForm> forms(5);
    for (EventForm& form : forms) {
        form.name = "Fall of Rome!";
        form.latitude = 0;
        form.longitude = 0;
    }
    forms[2].name = "fall-of-rome";
    forms[3].picture = "maps/fall-of-rome-2.png";
    forms[4].latitude.reset();
    EXPECT_EQ(picturenames(forms, "x"),
              (std::vector<std::string>{"x/maps/fall-of-rome.png", "x/maps/fall-of-rome-3.png",
                                        "x/maps/fall-of-rome-4.png", "x/maps/fall-of-rome-2.png", ""}));
    EXPECT_EQ(each(mapprefix, {"game/My Own.v2.BD3", "Medieval"}), "my-own-v2|medieval");

    const std::vector<EventForm> many(32767, forms[0]);
    const std::clock_t start = std::clock();
    EXPECT_EQ(picturenames(many, "x").back(), "x/maps/fall-of-rome-32767.png");
    EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC);
}

// Whatever file call fails, the old timeline stands whole or the new one does, and nothing is left beside it.
TEST_F(Make, LeavesNoHalfWrittenFile)
{
    writegood();
    maketimeline("in", "Out.bd3", false);
    fs::create_directory("out");
    for (const bool forever : {false, true}) {
        int failures = 0;
        bool hit = true;
        for (std::int64_t n = 1; hit; ++n) {
            writefile("out/Out.bd3", "1 old");
            faultplan = {n, forever, 0};
            const Findings findings = maketimeline("in", "out/Out.bd3", true).findings;
            hit = faultplan.calls >= n;
            faultplan = {};
            // A failed look for a map beside the file does not matter.
            EXPECT_EQ(contentof("out/Out.bd3"), haserrors(findings) ? "1 old" : contentof("Out.bd3")) << n;
            EXPECT_EQ(std::distance(fs::directory_iterator("out"), fs::directory_iterator()), 1) << n;
            EXPECT_EQ(haserrors(findings), errors(findings).find("Input/output error") != std::string::npos) << n;
            failures += haserrors(findings) ? 1 : 0;
        }
        EXPECT_GE(failures, 9); // open and read of two files; open, write, flush, close, rename of one
    }
}

} // namespace brindor::authoring
