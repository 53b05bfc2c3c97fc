#pragma once

#include <string>
#include <string_view>
#include <vector>

// Texts as people compare them. All texts here are UTF-8.
namespace brindor::authoring {

// Lower case without accents: "Malmö" becomes "malmo". Letters that have no plain Latin form stay as they are.
std::string folded(std::string_view text);

// The order of a list that people read: by the folded texts, then by character codes.
bool listedbefore(const std::string& a, const std::string& b);

// The words of a folded text: runs of letters.
std::vector<std::string> wordsof(std::string_view text);

// Whether the words of `part` stand one after the other in `whole`, singular or plural: "Greek cities" in "Western Greek
// cities".
bool holdswords(std::string_view whole, std::string_view part);

// A word of `name` that `text` holds too, in the singular or plural; empty where there is none. Words of fewer than
// four letters and words that stand in many names, as "battle" or "king", don't count.
std::string sharedword(std::string_view name, std::string_view text);

// The first number of three or four digits in a text, as a year looks; empty where there is none.
std::string yearin(std::string_view text);

// A text as part of a file name: lower case ASCII letters and digits, "-" for all between them. "Mao's march"
// becomes "maos-march". At most 80 characters; "item" where nothing is left.
std::string slug(std::string_view text);

} // namespace brindor::authoring
