#pragma once

#include "authoring/findings.h"

#include <string>
#include <string_view>

// What timelinemaker does with timelines. A command without an error in its findings has done its work and says what;
// else it has written nothing. The commands use the Timeline of the program.
namespace brindor::authoring {

struct Report {
    Findings findings;
    std::string said; // "Medieval.bd3: 40 people, 40 events"; empty where nothing was done
};

// Makes a timeline file from a folder of spreadsheets and puts pictures of one's own into the timeline's folder beside
// it. What check calls an error is one here too.
Report maketimeline(const std::string& folder, const std::string& file, bool overwrite);

// Errors, warnings and notes about a folder, or about a timeline file with its pictures.
Findings checkfolder(const std::string& folder);
Findings checkfile(const std::string& file);

// Writes people.csv and events.csv of a timeline file into a folder, which is made where it is missing, with the
// timeline's pictures.
Report exporttimeline(const std::string& file, const std::string& folder, bool overwrite);

// Writes the two spreadsheets with their headings and three example rows each, separated by commas or semicolons.
Report newtimeline(const std::string& folder, char separator);

// Whether a target is a timeline file by its name; else it is taken for a folder.
bool istimelinefile(std::string_view target);

// Puts a folder or a timeline file into the Timeline, as the game has it after a load. False where it can't be read;
// the reasons go to `findings`.
bool loadtarget(const std::string& target, Findings& findings);

// What a table calls a target: "Medieval" for "data/timelines/medieval/" and "game/Medieval.bd3".
std::string titleof(std::string target);

} // namespace brindor::authoring
