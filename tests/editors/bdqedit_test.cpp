#include "editors/bdqedit.h"

#include "support/programtest.h"
#include "timeline/usedmarks.h"
#include "timeline/writer.h"

namespace brindor {

using namespace toolkit;

class BdqeditTest : public tests::ProgramTest {};

// A file of two people and two events for each period but "Classic"; "Modern" is cut in its last section.
TEST_F(BdqeditTest, OpeningAndEachPeriodLoadAfreshFromGoodMissingAndBadFiles)
{
    tests::setnumbered(2, 2);
    for (const std::string period : {"Ancient", "Medieval", "Modern"}) {
        people[0].desc1 = period;
        const std::string text = timelinetext();
        tests::writefile(period + ".bd3", text.substr(0, text.size() - (period == "Modern" ? 5 : 0)));
    }
    host.persons["PEntry"] = host.persons["eEntry"] = [this](Screen& screen) { act(host, screen, "cmdNext; esc"); };
    // "2 Medieval.bd3 Medieval 1 0": the period chosen, the file, whose records are in memory, the cursor, a mark.
    const auto tell = [this](const std::string& story) {
        usedmarks.assign(usedmarks.size(), 9);
        const auto open = [this] { showchooser([this] { host.shown.push_back("statistics"); }); };
        return visit("bdqedit", open, story, [](Screen& screen) {
            std::string text;
            for (const OptionButton& option : static_cast<Bdqedit&>(screen).option1) {
                text += option.text + (option.selected ? "* " : " ");
            }
            return text + std::to_string(curperiod) + ' ' + curfile + ' ' + people[0].desc1 + ' ' +
                   std::to_string(curperson) + ' ' + std::to_string(usedmarks[0]);
        });
    };
    const std::string broken =
        "Modern.bd3, line 75: the file ends here, but the weight of an entry of the nations should follow. "
        "Complete the file and choose the period again. 2 Person 1 2 Event 1\n"; // what was read stays
    curperson = 1;
    EXPECT_EQ(tell("?; cmdPeople; cmdEvents; Command2; Option1(2); ?; cmdPeople; Option1(1); ?; Option1(3); esc"),
              "Ancient* Classic Medieval Modern 0 Ancient.bd3 Ancient 0 0\n"
              "Ancient Classic Medieval* Modern 2 Medieval.bd3 Medieval 0 0\n"
              "Classic.bd3 cannot be opened: No such file or directory. Put the file into the program's folder, or "
              "choose another period. 2 Person 1 2 Event 1\n"
              "Ancient Classic* Medieval Modern 1 Classic.bd3 Medieval 1 0\n" + // the old timeline stays in memory
                  broken +
                  "*");
    EXPECT_EQ(host.shown, (std::vector<std::string>{"bdqedit", "PEntry", "eEntry", "statistics", "PEntry"}));
    EXPECT_EQ(tell("?"), broken + "Ancient Classic Medieval Modern* 3 Modern.bd3 Modern 1 0\n");
}

} // namespace brindor
