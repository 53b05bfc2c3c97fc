#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// What each type of question is: one row a type. A new kind of question is a new row, with its texts.
namespace brindor {

enum class Family { either, people, events };
enum class QuizScreen { none, mchoice, qsort, qmatch };

using ItemText = std::string (*)(std::int16_t item);

struct QuestionKind {
    std::string_view name;
    Family family = Family::either;
    QuizScreen screen = QuizScreen::none;
    std::string_view question;   // the question line
    ItemText asked = nullptr;    // what follows it of the item asked about, if anything does
    ItemText shown = nullptr;    // a choice or description as the player sees it
    ItemText compared = nullptr; // the text by which blank and equal items are refused
};

// The row of a type; a row with nothing in it for a type outside 0 to 13.
const QuestionKind& kindof(std::int16_t type);

} // namespace brindor
