#pragma once

#include <cstddef>
#include <cstdint>

// How the marks of timeline/usedmarks.h move while a question is asked and answered: the higher a mark, the longer
// the item stays away.
namespace brindor {

enum MarkStep : std::int16_t {
    askedmark = 10, // drawn for slot 0
    shownmark = 1,  // drawn for another slot
    rightmark = 4,  // answered right
    wrongmark = -1, // answered wrong
};

// Adds `delta` to the mark in a slot, as the draw does. A mark never leaves 16 bits; the slot must be one of the
// table, as usedslot gives it.
void raisemark(std::size_t slot, std::int16_t delta);

// Adds `delta` to the mark of an item of the current family, as an answer does; the mark never goes below 0 nor
// above 32767. An item outside its family moves the last slot, which belongs to none.
void markused(std::int16_t item, std::int16_t delta);

} // namespace brindor
