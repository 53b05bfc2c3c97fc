#pragma once

#include "authoring/findings.h"

#include <string>

namespace brindor::mapmaker {

// Draws OUTFOLDER/maps/NAME.png for every event of a folder that has a place and no picture of its own, under the
// names that timelinemaker gives them in a timeline file PREFIX.bd3. A map that stands there unchanged is left alone.
authoring::Findings drawmaps(const std::string& folder, const std::string& outfolder, const std::string& prefix);

// Draws the main screen's background into a BMP file, whose folder must be there.
authoring::Findings drawtitle(const std::string& outfile);

// Draws the game's icon as brindor-16.png and so on, up to 256 pixels, and as brindor.svg, into a folder, which must
// be there.
authoring::Findings drawicons(const std::string& outfolder);

} // namespace brindor::mapmaker
