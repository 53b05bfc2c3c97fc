#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace brindor {

struct PlayerRec {
    std::string name;         // empty in a game of one player
    std::int16_t right = 0;   // points won in this game
    std::int16_t asked = 0;   // points that could have been won
    std::int16_t percent = 0; // whole percent of points won, as of the last addscore
};

// Written by playgame (reset) and addscore.
extern std::array<PlayerRec, 6> players;

extern std::int16_t curplayer; // index into players of the player in turn, never outside it; written by playgame

// Adds to the score of the player in turn and works out the percentage, rounded down; with nothing asked it is that of
// one point. The sums stop at the limits of 16 bits, and so does the percentage. A `logit` of 1 logs the score and
// shows it.
void addscore(std::int16_t points, std::int16_t possible, std::int16_t logit);

} // namespace brindor
