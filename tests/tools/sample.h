#pragma once

#include "authoring/commands.h"
#include "support/programtest.h"

// SAMPLES, from the build, is the folder of the samples: spreadsheets whose rows say what is wrong with them, beside
// what the tools report on them.
namespace brindor::tests {

namespace fs = std::filesystem;

// Copies a sample into the current folder. Gives its name.
std::string sample(const std::string& name);

// Writes the sample "good", with which every kind of question can be asked and nothing is to be said against, and the
// rows behind its own ten people and ten events, from line 12 on.
void writegood(const std::string& peoplerows = "", const std::string& eventrows = "", const std::string& into = "in");

// All findings as lines, and the errors among them. A report ends with what it said.
std::string report(const authoring::Findings& findings);
std::string errors(authoring::Findings findings);
std::string errors(const authoring::Report& report);

// A picture file of one grey pixel's worth of data that says it is `width` x `height`, each below 128.
std::string bmpfile(int width, int height);

// What a procedure makes of each text, with bars between.
template <class Procedure>
std::string each(Procedure procedure, const std::vector<std::string>& texts)
{
    std::string all;
    for (const std::string& text : texts) {
        all += (&text == &texts.front() ? "" : "|") + procedure(text);
    }
    return all;
}

} // namespace brindor::tests
