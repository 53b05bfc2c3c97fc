#pragma once

#include <cstdint>
#include <string>

// From an item and a type to text. Both rest on qtype and isperson, so a screen asks after getitem has run.
namespace brindor {

enum ParamKind : std::int16_t {
    sortprompt = 1,   // no item
    itemname = 2,     // an item of the current family
    sortline = 3,     // two items in the wrong order, with their sort values
    itemtext = 4,     // a choice or description
    questionline = 5, // about an item
};

// What the player sees. A kind outside 1 to 5, or a type that has no such text, gives an empty text.
std::string paramname(std::int16_t kind, std::int16_t item, std::int16_t extra);

// The text by which blank and equal items are refused; for type 0 the item's name. A type outside the table shows a
// message and gives an empty text.
std::string getpstr(std::int16_t item, std::int16_t type);

} // namespace brindor
