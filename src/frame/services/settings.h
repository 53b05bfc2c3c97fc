#pragma once

#include <cstdint>
#include <string>

// The values that outlive a run, kept in "bdq.INI" in the program's folder: lines of values by position, 11 of them and
// one for each slot of typeenabled from 0 to lasttype. Beside those below these are curperiod and placements.
namespace brindor {

inline constexpr std::int16_t usualquestions = 5; // where nothing else was chosen
inline constexpr std::int16_t mostquestions = 10;
inline constexpr std::int16_t lowestdifficulty = 1;
inline constexpr std::int16_t highestdifficulty = 9;

// 0 and empty until readsettings has run.
extern std::string mindif;       // lowest difficulty, 1 to 9, as a text; written by the setup screen
extern std::int16_t maxdif;      // highest difficulty, 1 to 9; written by the setup screen
extern std::int16_t nquestion;   // questions a game, 1 to 10; written by the setup screen
extern std::int16_t logstatus;   // 0 off, 1 all, 2 only incorrect; written by the setup screen
extern std::string titlepicture; // the main screen's backdrop

// Gives every value its default and reads the file. What is missing or bad keeps the default; a value out of its
// range is put into it.
void readsettings();

// Replaces the file in one step. A failure is told once a run.
void writesettings();

} // namespace brindor
