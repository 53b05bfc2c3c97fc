#include "setup/curstats.h"

#include "support/programtest.h"
#include "support/timelines.h"

namespace brindor {

using namespace toolkit;

class CurStatsTest : public tests::ProgramTest {
protected:
    // All lines of the screen, from top to bottom, with a bar behind each.
    std::string statistics()
    {
        std::string lines;
        host.persons["curStats"] = [&lines](Screen& screen) {
            EXPECT_EQ(screen.caption, "Current Timeline Statistics");
            for (const char* label : {"Label1", "Label2", "Label3", "Label5", "Label6", "Label7", "Label8", "Label4"}) {
                lines += tests::find<Label>(screen, label).text + '|';
            }
            userclick(tests::find<Button>(screen, "Command1"));
        };
        showstatistics();
        return lines;
    }
};

TEST_F(CurStatsTest, TheLinesOfALoadedTimeline)
{
    tests::setnumbered(3, 2);
    tests::setcatalogues({"a"}, {"b", "c"}, {}, {"d", "e", "f"});
    curfile = "Modern.bd3";
    const struct {
        std::int16_t mindate;
        std::int16_t maxdate;
        const char* range;
    } cases[] = {{776, 1453, "Current date range  776 to  1453|"},
                 {-500, 1453, "Current date range -500 to  1453|"},
                 {-3000, -44, "Current date range -3000 to -44|"},
                 {0, 0, "Current date range  0 to  0|"}};
    for (const auto& c : cases) {
        mindate = c.mindate;
        maxdate = c.maxdate;
        EXPECT_EQ(statistics(),
                  std::string("Modern.bd3|3 people|2 events|1 factions|2 occupations|0 groups|3 nations|") + c.range);
    }
}

TEST_F(CurStatsTest, AnEmptyTimeline)
{
    EXPECT_EQ(statistics(), "|0 people|0 events|0 factions|0 occupations|0 groups|0 nations|"
                            "Current date range  9999 to -25000|");
}

} // namespace brindor
