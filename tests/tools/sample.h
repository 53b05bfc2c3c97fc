#pragma once

#include "authoring/findings.h"

#include <string>

namespace brindor::tests {

// The header rows, with their line ends.
std::string peopleheader();
std::string eventsheader();

// Writes a folder with the two files; the rows follow the headers.
void writefolder(const std::string& folder, const std::string& peoplerows, const std::string& eventrows);

// Ten people and ten events with which every kind of question can be asked and nothing is to be said against.
std::string goodpeople();
std::string goodevents();

// All findings as lines.
std::string report(const authoring::Findings& findings);

// The errors among them.
std::string errors(authoring::Findings findings);

// A picture file of one grey pixel's worth of data that says it is `width` x `height`.
std::string bmpfile(int width, int height);

} // namespace brindor::tests
