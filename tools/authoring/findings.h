#pragma once

#include <cstdint>
#include <string>
#include <vector>

// What the tools have to say about a file.
namespace brindor::authoring {

// An error keeps a timeline from being made, a warning tells of what spoils questions, a note of what is worth a look.
enum class Severity { error, warning, note };

struct Finding {
    Severity severity = Severity::error;
    std::string file;
    std::int64_t line = 0; // from 1; 0 where the finding is about the whole file
    std::string text;
};

using Findings = std::vector<Finding>;

// "people.csv:12: error: ..." without a line end.
std::string findingline(const Finding& finding);

bool haserrors(const Findings& findings);

// Puts the findings of each file together in the order of their lines; the files keep the order in which they
// first come, and findings of one line the order in which they were made.
void sortfindings(Findings& findings);

} // namespace brindor::authoring
