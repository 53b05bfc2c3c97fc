#pragma once

#include "authoring/findings.h"
#include "authoring/forms.h"
#include "base/result.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

// The pictures of events: maps, which mapmaker draws under maps/, and pictures of one's own.
namespace brindor::authoring {

inline constexpr std::int16_t mapwidth = 640; // pixels
inline constexpr std::int16_t mapheight = 480;

struct EventPicture {
    std::string name; // relative to the timeline file; empty for an event without a picture
    std::int16_t width = 0;
    std::int16_t height = 0;
};

// Whether the picture is a map of the place, drawn by mapmaker.
bool ismap(const std::string& picture);

bool hasplace(const EventForm& form);

// What the maps of a timeline file begin with: "medieval" for "game/Medieval.bd3".
std::string mapprefix(const std::string& timelinefile);

// The pictures' names, in the order of the events: the one that is given, else "maps/PREFIX-battle-of-hastings.png"
// where the event has a place, else none. No two maps get one name.
std::vector<std::string> picturenames(const std::vector<EventForm>& events, const std::string& prefix);

// The pictures with their sizes in pixels. Pictures of one's own are looked for in the folders in order; one that is
// missing or can't be read is an error. A map is looked for only if `mapsneeded` and its event has no place.
std::vector<EventPicture> findpictures(const Forms& forms, const std::string& prefix,
                                       std::span<const std::string> folders, bool mapsneeded, Findings& findings);

// Copies those of the named pictures that lie in `from` to `into`, with their folders. A picture that is the same in
// both is left alone, and so is a name that leads out of the folder.
Result<Done> copypictures(const std::vector<EventPicture>& pictures, const std::string& from, const std::string& into);

// "game" for "game/Medieval.bd3"; empty for a bare name.
std::string folderof(const std::string& path);

} // namespace brindor::authoring
