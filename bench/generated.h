#pragma once

#include <cstdint>
#include <string>

// Timelines of any size, with texts as long as those of the shipped ones.
namespace brindor::bench {

inline constexpr const char* generatedfile = "bench.bd3";

// How long the texts are: as those of the shipped timelines, two or three letters and a number, or several sentences.
enum class Texts { usual, brief, lengthy };

// Writes a timeline file: so many people, so many events, and as many entries in each of the four Catalogues. Record k
// says the same as record k % `different` in all that a question shows; with `outliers` the last so many records are
// like no other. Gives the file's text. What was in memory is given back.
std::string writetimeline(std::int16_t records, std::int16_t different, std::int16_t outliers = 0,
                          Texts texts = Texts::usual);

// The same, and loads it as the game does.
void loadtimeline(std::int16_t records, std::int16_t different, std::int16_t outliers = 0);

// Gives the memory of the Timeline back, as it is before the first load.
void forgettimeline();

} // namespace brindor::bench
