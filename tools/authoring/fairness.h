#pragma once

#include "authoring/findings.h"

#include <cstdint>
#include <string>
#include <vector>

// How often the game's own draw gives a question to which a fair expert has two answers.
namespace brindor::authoring {

// Of the questions of one kind, those with two answers.
struct Fairness {
    bool asked = false; // the Timeline has what the kind needs
    std::int64_t clear = 0;
    std::int64_t arguable = 0;
};

// Draws questions of a kind from the loaded Timeline and judges them. The same seed gives the same ones. A kind outside
// 1 to lasttype must not be asked for.
Fairness fairnessof(std::int16_t type, std::int64_t questions, std::uint64_t seed);

// The rules by which a question is judged, one line a rule.
std::string fairnessrules();

// A Markdown table: for each kind of question and each timeline, the share of questions with two answers, clear ones
// and arguable ones. A target is a folder or a timeline file; one that can't be read goes to `findings` and has no
// column. The same seed gives the same table. Uses the Timeline, the used marks and the question of the program.
std::string fairnesstable(const std::vector<std::string>& targets, std::int64_t questions, std::uint64_t seed,
                          Findings& findings);

} // namespace brindor::authoring
