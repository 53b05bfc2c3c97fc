#pragma once

#include <array>
#include <cstdint>
#include <string>

// The tables of question types and the state of the question in progress. A type is a number from 1 to lasttype; 0
// stands for an item's name and is never asked. What a type is stands in questions/types.cpp, one row each.
namespace brindor {

inline constexpr std::int16_t lasttype = 13;                     // the number of the last row
inline constexpr std::int16_t itemsasked = 5;                    // a question takes the slots 0 to 4 of chosen
inline constexpr std::int16_t placesoftheright = itemsasked - 1; // of a multiple choice question: never the last

// One slot a type, and one behind the last that stays empty.
template <class Value>
using ByType = std::array<Value, lasttype + 2>;

extern ByType<std::string> typenames; // written by filltables

// Non-zero: the type may be asked. Slots 1 to lasttype have an effect. Written by the settings and the setup screen.
extern ByType<std::int16_t> typeenabled;

extern std::int16_t qtype; // the type of the question in progress; written by showquestion

// The item numbers drawn for the question in progress, indices into people or events. Written by getitem, and
// reordered by the sorting screen. The slot behind itemsasked stays unwritten.
extern std::array<std::int16_t, itemsasked + 1> chosen;

extern double isperson; // 1 while the draw is of people, 0 of events; written by getitem

// Writes the names of the types into typenames. Called once, at start.
void filltables();

} // namespace brindor
