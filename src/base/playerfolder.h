#pragma once

#include "base/result.h"

#include <string>
#include <string_view>

// Where the game is played. A game whose files lie in one folder is played there. One that is installed for all users
// of a machine, which the file "installed" beside the program tells, is played in a folder of each player's own, that
// holds links to the game's files and all that is written.
namespace brindor {

// The real path of the installed game's folder, to which links in the player's folder may lead; empty where the game is
// not installed. Written by prepareplayerfolder.
extern std::string sharedfolder;

// The folder to play in: `programfolder` where the game is not installed, else "brindor" in `datahome`, or in
// .local/share in `home` where `datahome` is no absolute path. Empty where `home` is none either.
std::string playerfolder(const std::string& programfolder, std::string_view datahome, std::string_view home);

// Makes the player's folder of an installed game ready: puts a link where a file of the game has no namesake yet, in
// the folders below too, and takes away links to files that the game no longer has. What is the player's own stays.
// Nothing to do where both folders are one.
Result<Done> prepareplayerfolder(const std::string& programfolder, const std::string& folder);

// Both of them for the user that runs the program; the value is the folder. Fails with a text for the player.
Result<std::string> readyplayerfolder(const std::string& programfolder);

} // namespace brindor
