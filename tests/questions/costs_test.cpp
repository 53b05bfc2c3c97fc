#include "questions/question.h"
#include "questions/selection.h"
#include "questions/types.h"
#include "support/allocations.h"
#include "support/programtest.h"
#include "timeline/usedmarks.h"

#include <cstdint>

// What the draw may cost at most. The linker hands the calls of samesources to the counting twin below.
namespace {
std::int64_t comparisons = 0;
}

extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier)
bool __real__ZN7brindor11samesourcesERKNS_10TextPiecesEss(const brindor::TextPieces& pieces, std::int16_t one,
                                                          std::int16_t other);
bool __wrap__ZN7brindor11samesourcesERKNS_10TextPiecesEss(const brindor::TextPieces& pieces, std::int16_t one,
                                                          std::int16_t other)
{
    ++comparisons;
    return __real__ZN7brindor11samesourcesERKNS_10TextPiecesEss(pieces, one, other);
}
// NOLINTEND(bugprone-reserved-identifier)
}

namespace brindor {

class Costs : public tests::ProgramTest {
protected:
    static void draw(std::int16_t type)
    {
        qtype = type;
        for (std::int16_t slot = 0; slot < itemsasked; ++slot) {
            getitem(slot);
        }
    }
};

TEST_F(Costs, ADrawHardlyAsksForMemory)
{
    tests::setnumbered(400, 400);
    for (std::int16_t type = 1; type <= lasttype; ++type) {
        clearmarks();
        draw(type);
        const std::int64_t before = tests::allocations;
        for (int question = 0; question < 300; ++question) {
            draw(type); // soon all items are worn, and the levels climb
        }
        EXPECT_LE(tests::allocations - before, 300 * itemsasked * 2) << type;
    }
}

// All items but four are alike: each is looked at once for the whole question, not once a try or a slot.
TEST_F(Costs, TheHardestDrawLooksAtEachTextOnce)
{
    constexpr int items = 4000;
    tests::setnumbered(items, items);
    for (std::size_t i = 0; i < items - 4; ++i) {
        people[i] = people[0];
        events[i] = events[0];
    }
    for (std::int16_t type = 1; type <= lasttype; ++type) {
        clearmarks();
        comparisons = 0;
        draw(type);
        EXPECT_GT(comparisons, items / 2) << type;
        EXPECT_LT(comparisons, items * 5 / 4) << type;
    }
    comparisons = 0;
    fillabletypes();
    EXPECT_GT(comparisons, items);
    EXPECT_LT(comparisons, items * lasttype * 5 / 4);
    comparisons = 0;
    fillabletypes(); // the Timeline is as it was
    EXPECT_EQ(comparisons, 0);
}

} // namespace brindor
