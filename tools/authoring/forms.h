#pragma once

#include "timeline/timeline.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The authoring form of a timeline: what one row of people.csv or events.csv says. A form comes from a folder or from
// a loaded Timeline; the checks don't care from which.
namespace brindor::authoring {

inline constexpr std::string_view peoplefile = "people.csv";
inline constexpr std::string_view eventsfile = "events.csv";

inline constexpr std::array<std::string_view, 9> peoplecolumns = {"name",  "date1", "kind1",   "date2",     "kind2",
                                                                  "desc1", "desc2", "faction", "occupation"};
inline constexpr std::array<std::string_view, 14> eventcolumns = {
    "name",  "date1",   "kind1",   "date2", "kind2",    "desc1",     "desc2",
    "group", "nation1", "nation2", "place", "latitude", "longitude", "picture"};

inline constexpr std::array<std::string_view, 3> kindwords = {"", "ca.", "reign"}; // by DateKind

struct ItemForm : Dates {
    std::int64_t line = 0; // in the file that the form comes from
    std::string name;
    std::string desc1;
    std::string desc2;
};

struct PersonForm : ItemForm {
    std::string faction;
    std::string occupation;
};

struct EventForm : ItemForm {
    std::string group;
    std::string nation1;
    std::string nation2;
    std::string place;               // these three are empty where a loaded Timeline was the source
    std::optional<double> latitude;  // degrees, south negative
    std::optional<double> longitude; // degrees, west negative
    std::string picture;             // empty: the map of the place is the picture
};

// Where forms come from, for findings about them.
struct Source {
    std::string file;
    std::span<const std::string_view> columns; // empty where the fields have no columns

    // "column 4 (date2)", or "date2" where there are no columns.
    std::string field(std::string_view column) const;
};

struct Forms {
    Source peoplesource;
    Source eventsource;
    std::vector<PersonForm> people;
    std::vector<EventForm> events;
};

// Puts the records into the order of the timeline file: by first date, second date, name.
void sortforms(Forms& forms);

} // namespace brindor::authoring
