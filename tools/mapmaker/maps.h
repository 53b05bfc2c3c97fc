#pragma once

#include "authoring/findings.h"

#include <string>

namespace brindor::mapmaker {

// Each draws pictures and writes them; folders that are missing are made. A picture that stands there unchanged is left
// alone, another one is replaced only if `overwrite`. With an error nothing is written.

// Draws a map for every event of a folder that has a place and no picture of its own, under the names that
// timelinemaker gives them in a timeline file PREFIX.bd3 in `outfolder`: OUTFOLDER/PREFIX/maps/NAME.png.
authoring::Findings drawmaps(const std::string& folder, const std::string& outfolder, const std::string& prefix,
                             bool overwrite);

// Draws the main screen's background into a BMP file.
authoring::Findings drawtitle(const std::string& outfile, bool overwrite);

// Draws the game's icon as brindor-16.png and so on, up to 256 pixels, and as brindor.svg, into a folder.
authoring::Findings drawicons(const std::string& outfolder, bool overwrite);

} // namespace brindor::mapmaker
