#pragma once

#include "timeline/timeline.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The authoring form of a timeline: what one row of people.csv or events.csv says. A form comes from a folder or from
// a loaded Timeline; the checks don't care from which.
namespace brindor::authoring {

inline constexpr std::string_view peoplefile = "people.csv";
inline constexpr std::string_view eventsfile = "events.csv";

struct Column {
    std::string_view name;
    bool needed = false; // the file can't be read without it
};

// In the order in which the tools write them. Those from `woman` on stay in the spreadsheets: a timeline file does
// not carry them.
inline constexpr std::array<Column, 12> peoplecolumns = {{{"name", true},
                                                          {"date1", true},
                                                          {"kind1"},
                                                          {"date2"},
                                                          {"kind2"},
                                                          {"desc1", true},
                                                          {"desc2"},
                                                          {"faction", true},
                                                          {"occupation", true},
                                                          {"woman"},
                                                          {"fame"},
                                                          {"source"}}};
inline constexpr std::array<Column, 16> eventcolumns = {{{"name", true},
                                                         {"date1", true},
                                                         {"kind1"},
                                                         {"date2"},
                                                         {"kind2"},
                                                         {"desc1", true},
                                                         {"desc2"},
                                                         {"group", true},
                                                         {"nation1", true},
                                                         {"nation2"},
                                                         {"place"},
                                                         {"latitude"},
                                                         {"longitude"},
                                                         {"picture"},
                                                         {"fame"},
                                                         {"source"}}};
inline constexpr std::size_t writtenpeoplecolumns = 9;
inline constexpr std::size_t writteneventcolumns = 14;

inline constexpr std::array<std::string_view, 3> kindwords = {"", "ca.", "reign"}; // by DateKind

struct ItemForm : Dates {
    std::int64_t line = 0; // in the file that the form comes from
    std::string name;
    std::string desc1;
    std::string desc2;
    std::int16_t fame = 0;            // 1, everyone has heard of it, to 5, specialists; 0 where it is not given
    std::vector<std::string> sources; // short keys, or "memory"
};

struct PersonForm : ItemForm {
    std::string faction;
    std::string occupation;
    bool woman = false;
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
    std::vector<std::string> headings; // of the columns, in the file's order; empty where the fields have no columns

    bool has(std::string_view column) const;

    // "column 4 (date2)", or "date2" where there is no such column.
    std::string field(std::string_view column) const;
};

struct Forms {
    Source peoplesource;
    Source eventsource;
    std::vector<PersonForm> people;
    std::vector<EventForm> events;
};

// "1 person", "40 people"
std::string counttext(std::size_t count, std::string_view one, std::string_view more);

// Puts the records into the order of the timeline file: by first date, second date, name.
void sortforms(Forms& forms);

} // namespace brindor::authoring
