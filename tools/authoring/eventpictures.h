#pragma once

#include "authoring/findings.h"
#include "authoring/forms.h"
#include "authoring/writing.h"

#include <cstdint>
#include <string>
#include <vector>

// The pictures of events: maps, which mapmaker draws, and pictures of one's own. All pictures of a timeline lie in a
// folder of its own beside it: those of Medieval.bd3 in medieval/, its maps in medieval/maps/.
namespace brindor::authoring {

inline constexpr std::int16_t mapwidth = 640; // pixels
inline constexpr std::int16_t mapheight = 480;

struct EventPicture {
    std::string name; // relative to the timeline file; empty for an event without a picture
    std::int16_t width = 0;
    std::int16_t height = 0;
};

bool hasplace(const EventForm& form);

// Whether mapmaker draws the event's picture: it has a place and no picture of its own.
bool isdrawn(const EventForm& form);

// What the folder of a timeline's pictures is called: "medieval" for "game/Medieval.bd3" and for "Medieval".
std::string mapprefix(const std::string& timelinefile);

// The pictures' names relative to the timeline file, in the order of the events: "medieval/maps/battle-of-hastings.png"
// for one that is drawn, "medieval/" and the given name for one's own, else none. No two maps get one name.
std::vector<std::string> picturenames(const std::vector<EventForm>& events, const std::string& prefix);

// The pictures of the spreadsheets in a folder, with their sizes in pixels as they are shown. One's own that are
// missing or can't be shown are errors; what spoils a picture is a warning.
std::vector<EventPicture> findpictures(const Forms& forms, const std::string& prefix, const std::string& folder,
                                       Findings& findings);

// Looks for the pictures that a timeline file names.
void checkpictures(const Forms& forms, const std::string& timelinefile, Findings& findings);

// Adds one's own pictures of the spreadsheets in a folder to what is written beside a timeline file.
void takepictures(const std::vector<EventForm>& events, const std::string& folder, const std::string& timelinefile,
                  Writing& writing, Findings& findings);

// The other way: gives the events of a timeline file the pictures' names for spreadsheets, and adds the pictures that
// are there to what is written into their folder.
void takeback(Forms& forms, const std::string& timelinefile, const std::string& folder, Writing& writing,
              Findings& findings);

} // namespace brindor::authoring
