#pragma once

#include "authoring/commands.h"
#include "support/programtest.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace brindor::tests {

namespace fs = std::filesystem;

// The header rows, with their line ends.
std::string peopleheader();
std::string eventsheader();

// Ten people and ten events with which every kind of question can be asked and nothing is to be said against.
std::string goodpeople();
std::string goodevents();

// Writes a folder with the two files; the rows follow the headers.
void writefolder(const std::string& folder, const std::string& peoplerows, const std::string& eventrows);

// The folder "in" with the good ones and the rows behind them, from line 12 on.
void writegood(const std::string& peoplerows = "", const std::string& eventrows = "");

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
