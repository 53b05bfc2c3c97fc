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
    std::string seen; // in the editors and in the statistics
    host.persons["PEntry"] = host.persons["eEntry"] = [&](Screen& screen) {
        seen += act(host, screen, "cmdNext; ?", [&] { return tests::find<Combo>(screen, "Combo1").text; });
        userclose(screen);
    };
    // "2 Medieval.bd3 Medieval 1 0": the period chosen, the file, whose records are in memory, the cursor, a mark.
    const auto visit = [&](const std::string& story) {
        std::string transcript;
        host.persons["bdqedit"] = [&](Screen& screen) {
            const auto& s = static_cast<Bdqedit&>(screen);
            transcript = tests::said(host);
            transcript += act(host, screen, story, [&] {
                std::string text;
                for (std::size_t i = 0; i < s.option1.size(); ++i) {
                    text += s.option1[i].text + (s.option1[i].selected ? "* " : " ");
                }
                return text + std::to_string(curperiod) + ' ' + curfile + ' ' + people[0].desc1 + ' ' +
                       std::to_string(curperson) + ' ' + std::to_string(usedmarks[0]);
            });
            EXPECT_EQ(s.left, (host.display.width - s.width) * 0.5);
            EXPECT_TRUE(userescape(screen));
        };
        usedmarks.assign(usedmarks.size(), 9);
        showchooser([&seen] { seen += "Stats\n"; });
        return transcript;
    };
    const std::string broken =
        "Modern.bd3, line 75: the file ends here, but the weight of an entry of the nations should follow. "
        "Complete the file and choose the period again. 2 Person 1 2 Event 1\n"; // what was read stays
    curperson = 1;
    EXPECT_EQ(
        visit("?; cmdPeople; cmdEvents; Command2; cmdPeople; Option1(2); ?; cmdPeople; Option1(1); ?; Option1(3)"),
        "Ancient* Classic Medieval Modern 0 Ancient.bd3 Ancient 0 0\n"
        "Ancient Classic Medieval* Modern 2 Medieval.bd3 Medieval 0 0\n"
        "Classic.bd3 cannot be opened: No such file or directory. Put the file into the program's folder, or "
        "choose another period. 2 Person 1 2 Event 1\n"
        "Ancient Classic* Medieval Modern 1 Classic.bd3 Medieval 1 0\n" + // the old timeline stays in memory
            broken);
    EXPECT_EQ(seen, "Person 1\nEvent 1\nStats\nLast in list\nPerson 1\nPerson 1\n");
    EXPECT_EQ(visit("?"), broken + "Ancient Classic Medieval Modern* 3 Modern.bd3 Modern 1 0\n");
}

} // namespace brindor
