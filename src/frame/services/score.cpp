#include "frame/services/score.h"

#include "base/numbers.h"
#include "base/text.h"
#include "frame/services/log.h"

#include <algorithm>

namespace brindor {

std::array<PlayerRec, 6> players;
std::int16_t curplayer = 0;

void addscore(std::int16_t points, std::int16_t possible, std::int16_t logit)
{
    PlayerRec& player = players[static_cast<std::size_t>(curplayer)];
    player.right = add16(player.right, points);
    player.asked = add16(player.asked, possible);
    player.percent = index16(player.right * 100 / std::max<std::int16_t>(player.asked, 1));
    if (logit == 1) {
        logline("Score: " + numbertext(player.right) + " out of " + numbertext(player.asked) + "  " +
                    numbertext(player.percent) + "%",
                1, 1);
    }
}

} // namespace brindor
