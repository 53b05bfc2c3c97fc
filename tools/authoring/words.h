#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Texts as people compare them. All texts here are UTF-8.
namespace brindor::authoring {

// Lower case without accents: "Malmö" becomes "malmo". Letters of other scripts stay what they are.
std::string folded(std::string_view text);

// How many slips of the pen lie between two texts: letters that are wrong, missing, too many or changed with the next.
std::size_t misspellings(std::string_view a, std::string_view b);

// The order of a list that people read: by the folded texts, then by character codes.
bool listedbefore(const std::string& a, const std::string& b);

// The words of a folded text: runs of letters.
std::vector<std::string> wordsof(std::string_view text);

// Whether the words of `part` stand one after the other in those of `whole`, singular or plural: "Greek city" in
// "Western Greek cities". Never where there are none.
bool holdswords(const std::vector<std::string>& whole, const std::vector<std::string>& part);

// A word of `name` that `text` holds too, in the singular or plural; empty where there is none. Words of fewer than
// four letters and words that stand in many names, as "battle" or "king", don't count.
std::string sharedword(std::string_view name, std::string_view text);

// The first number of three or four digits in a text that looks like a year and not like a count, as "500 pounds" does;
// empty where there is none.
std::string yearin(std::string_view text);

std::string inquotes(std::string_view text);

// A text as part of a file name: lower case ASCII letters and digits, "-" for all between them. "Mao's march"
// becomes "maos-march". At most 80 characters; "item" where nothing is left.
std::string slug(std::string_view text);

} // namespace brindor::authoring
