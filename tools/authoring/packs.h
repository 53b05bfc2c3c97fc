#pragma once

#include "authoring/commands.h"

#include <functional>
#include <string>

// A timeline on its way to players: into a game of its own, into a zip file, out of it into the game.
namespace brindor::authoring {

// Where the other programs lie.
struct Places {
    std::string tools; // the folder with mapmaker
    std::string game;  // the folder with brindor and the timelines
};

// As the build and a packed copy have them, seen from the folder of timelinemaker.
Places placesbeside(const std::string& toolfolder);

// The period that a word means, letter case aside: "Modern" for "modern". Empty for no period's name.
std::string periodnamed(const std::string& word);

// The periods as a list for people, `word` before the last: "Ancient, Classic, Medieval or Modern".
std::string periodlist(const std::string& word);

// Makes the timeline of a folder with its maps in a fresh folder and starts the game on it there; the fresh folder goes
// when the game has ended. Takes nothing from the game but copies, and changes nothing there. `ready` is called with
// what was made just before the game starts.
Report playtimeline(const std::string& folder, const std::string& period, const Places& places,
                    const std::function<void(const Report&)>& ready);

// Puts the timeline of a folder with its maps and pictures into a zip file.
Report packtimeline(const std::string& folder, const std::string& zipfile, bool overwrite, const Places& places);

// Puts the timeline of such a file into the game as one of its periods. The file is taken as a stranger's: it must hold
// one timeline that the game can play, and only the pictures that this names, all in one folder, are taken from it.
Report addpack(const std::string& zipfile, const std::string& period, bool overwrite, const Places& places);

} // namespace brindor::authoring
