#include "editors/bdqedit.h"

#include "support/programtest.h"
#include "support/story.h"
#include "support/timelines.h"
#include "timeline/usedmarks.h"
#include "timeline/writer.h"

namespace brindor {

using namespace toolkit;

// A file of two people and two events for each period but "Classic"; "Modern" is cut in its last section.
class BdqeditTest : public tests::ProgramTest {
protected:
    BdqeditTest()
    {
        tests::setnumbered(2, 2);
        for (const std::string period : {"Ancient", "Medieval", "Modern"}) {
            people[0].desc1 = period;
            const std::string text = timelinetext();
            tests::writefile(period + ".bd3", text.substr(0, text.size() - (period == "Modern" ? 5 : 0)));
        }
        host.persons["PEntry"] = host.persons["eEntry"] = [this](Screen& screen) {
            seen += act(host, screen, "cmdNext; ?", [&] { return tests::find<Combo>(screen, "Combo1").text; });
            userclose(screen);
        };
    }

    // "2 Medieval.bd3 Medieval 1": the period chosen, the file asked for, whose records are in memory, the cursor.
    std::string visit(const std::string& story)
    {
        std::string transcript;
        host.persons["bdqedit"] = [&](Screen& screen) {
            const auto& s = static_cast<Bdqedit&>(screen);
            const std::string opened = tests::said(host);
            transcript = opened + act(host, screen, story, [&] {
                             std::string text;
                             for (std::size_t i = 0; i < s.option1.size(); ++i) {
                                 text += s.option1[i].text + (s.option1[i].selected ? "* " : " ");
                             }
                             return text + curfile + ' ' + people[0].desc1 + ' ' + std::to_string(curperson);
                         });
            EXPECT_EQ(s.caption, " Choose ");
            EXPECT_EQ(s.left, (host.display.width - s.width) * 0.5);
            EXPECT_TRUE(userescape(screen));
        };
        showchooser([this] { seen += "Stats\n"; });
        return transcript;
    }

    std::string seen; // in the editors and in the statistics
};

TEST_F(BdqeditTest, OpeningLoadsThePeriodInForceAfresh)
{
    for (const auto period : std::initializer_list<std::int16_t>{3, 2, 0}) {
        curperiod = period;
        curperson = 1;
        usedmarks.assign(usedmarks.size(), 9);
        visit("");
        EXPECT_EQ(curperiod, period);
        EXPECT_EQ(people[0].desc1, periodnames[static_cast<std::size_t>(period)]);
        EXPECT_EQ(usedmarks, std::vector<std::int16_t>(5, 0));
        EXPECT_EQ(curperson, period == 3 ? 1 : 0); // a load that fails at the end leaves the cursors
    }
}

TEST_F(BdqeditTest, AnotherPeriodWithGoodMissingAndBadFiles)
{
    EXPECT_EQ(
        visit("?; cmdPeople; cmdEvents; Command2; cmdPeople; Option1(2); ?; cmdPeople; Option1(1); ?; Option1(3); ?"),
        "Ancient* Classic Medieval Modern Ancient.bd3 Ancient 0\n"
        "Ancient Classic Medieval* Modern Medieval.bd3 Medieval 0\n"
        "Classic.bd3 cannot be opened: No such file or directory. Put the file into the program's folder, or "
        "choose another period. 2 Person 1 2 Event 1\n"
        "Ancient Classic* Medieval Modern Classic.bd3 Medieval 1\n" // the old timeline stays in memory
        "Modern.bd3, line 75: the file ends here, but the weight of an entry of the nations should follow. "
        "Complete the file and choose the period again. 2 Person 1 2 Event 1\n"
        "Ancient Classic Medieval Modern* Modern.bd3 Modern 1\n"); // what was read stays
    EXPECT_EQ(seen, "Person 1\nEvent 1\nStats\nLast in list\nPerson 1\nPerson 1\n");
    EXPECT_EQ(curperiod, 3);
}

} // namespace brindor
