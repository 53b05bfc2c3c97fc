#pragma once

#include "authoring/findings.h"

#include <string>

// What timelinemaker does. Each step gives back what it has to say; without an error it has done its work. They use
// the Timeline of the program.
namespace brindor::authoring {

// Makes a timeline file from a folder and puts pictures of one's own beside it. On an error nothing is written.
Findings maketimeline(const std::string& folder, const std::string& file);

// Errors and warnings about a folder, or about a timeline file with the pictures beside it.
Findings checkfolder(const std::string& folder);
Findings checkfile(const std::string& file);

// Whether a target is a timeline file by its name; else it is taken for a folder.
bool istimelinefile(const std::string& target);

// Puts a folder or a timeline file into the Timeline, as the game has it after a load. False where it can't be read;
// the reasons go to `findings`.
bool loadtarget(const std::string& target, Findings& findings);

// What a table calls a target: "Medieval" for "data/timelines/medieval/" and "game/Medieval.bd3".
std::string titleof(std::string target);

// Writes people.csv and events.csv of a timeline file into a folder, which is made where it is missing, with the
// pictures that lie beside the file. CSV files that stand there are replaced only if `overwrite`.
Findings exporttimeline(const std::string& file, const std::string& folder, bool overwrite);

} // namespace brindor::authoring
