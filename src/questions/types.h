#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

// What each type of question is: one row a type. A new kind of question is a new row, and lasttype one higher.
namespace brindor {

enum class ItemKind { any, person, event };
enum class QuizScreen { none, mchoice, qsort, qmatch };

// A piece of a text.
struct TextPiece {
    // What it says of an item. What stands in no record is put together in `scratch`, which is empty; the piece is good
    // until the next one is asked for. An item outside its family counts as an empty record.
    std::string_view (*text)(std::string& scratch, std::int16_t item) = nullptr;

    // Whether two items hold the same where it comes from, so that it says the same of both; different sources can
    // still say the same. nullptr where it says the same of all.
    bool (*samesource)(std::int16_t one, std::int16_t other) = nullptr;
};

// The pieces of a text in their order, empty ones behind the last; none at all where a type has no such text.
struct TextPieces {
    std::array<TextPiece, 5> all;
};

struct QuestionKind {
    std::string_view name;
    ItemKind of = ItemKind::any; // what its items are
    QuizScreen screen = QuizScreen::none;
    std::string_view question; // the question line
    TextPieces asked{};        // what follows it of the item asked about
    TextPieces shown{};        // a choice or description as the player sees it
    TextPieces compared{};     // the text by which blank and equal items are refused
    bool sorts = false;        // its items have sort values
};

// The row of a type; a row with nothing in it for a type outside the table.
const QuestionKind& kindof(std::int16_t type);

// Adds the pieces put together for an item to a text.
void addpieces(std::string& text, const TextPieces& pieces, std::int16_t item);

// Whether all pieces have the same sources for two items, which then have the same text. Puts no text together.
bool samesources(const TextPieces& pieces, std::int16_t one, std::int16_t other);

} // namespace brindor
