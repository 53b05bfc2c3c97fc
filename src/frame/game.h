#pragma once

#include <cstdint>

namespace brindor {

// The conditions of the game in progress. Written by playgame, which fixes them at its start.
extern std::int16_t nplayers;
extern std::int16_t nrounds;
extern std::int16_t targetscore; // a score that ends the game early

// Plays one game and returns when its closing message has been dismissed. Where no kind of question can be asked,
// one message says why and what to do, and the game ends without a closing message.
void playgame();

// Asks the nquestion questions of a round, numbered from 1. Draws only types that are enabled and that the Timeline
// can fill; there must be one. Ends early when the desktop wants the program to end.
void playround(std::int16_t round);

// Asks one question of a type from 1 to lasttype on its screen; nothing for any other type.
void showquestion(std::int16_t type);

} // namespace brindor
