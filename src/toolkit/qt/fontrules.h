#pragma once

namespace brindor::toolkit::qt {

// Has fonts looked up in the folders where the system and the player keep them, by the player's own rules, and not by
// the many of the system, whose reading takes most of the time that a start's fonts take. Every font and script is
// there as before. To be called before the Qt application is made. Where the player's environment names a
// configuration, or those folders hold no font, all is left to the system.
void usefontrules();

} // namespace brindor::toolkit::qt
