#pragma once

#include "base/numbers.h"
#include "timeline/catalogue.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// The Timeline: the people and events of one period, as the last load left them. One is in memory at a time.
namespace brindor {

enum DateKind : std::int16_t { known = 0, approx = 1, reign = 2 };

// Years are plain signed numbers, negative before the common era. A single date has date2 equal to date1.
struct Dates {
    std::int16_t date1 = 0;
    std::int16_t date2 = 0;
    std::int16_t datetype1 = known; // a DateKind; a hand-made file can hold any other number
    std::int16_t datetype2 = known;
};

// What a person and an event have in common.
struct ItemRec : Dates {
    std::string name;
    std::string desc1;
    std::string desc2;
    std::string desc3; // read from the file and held; nothing reads it
    std::string imagename;
    std::int16_t imagesize1 = 0;
    std::int16_t imagesize2 = 0;
    std::int16_t live = 0; // not 0 for a record that belongs in the lists: 1 from a file, -1 from an editor
};

struct PersonRec : ItemRec {
    std::int16_t faction = 0; // indices into factions and occupations
    std::int16_t occupation = 0;
};

struct EventRec : ItemRec {
    std::int16_t group = 0; // indices into groups and nations
    std::int16_t nation1 = 0;
    std::int16_t nation2 = 0; // equal to nation1 for an event of one nation
};

inline constexpr std::int16_t mostrecords = highest16; // of each family, and entries of each Catalogue

// Records 0 to npeople - 1 are in use; a load leaves two empty slots behind them. Written by the load and, while
// viewonly is 0, by the editors. The counters are whole and at most mostrecords.
extern std::vector<PersonRec> people;
extern std::vector<EventRec> events;
extern double npeople;
extern double nevents;

// The counters as loop limits.
std::int16_t peoplecount();
std::int16_t eventcount();

// A record by its index; an empty record for an index outside the array.
template <class Record>
const Record& recordat(const std::vector<Record>& records, std::int16_t k)
{
    static const Record none;
    return k >= 0 && static_cast<std::size_t>(k) < records.size() ? records[static_cast<std::size_t>(k)] : none;
}
inline const PersonRec& personrec(std::int16_t k)
{
    return recordat(people, k);
}
inline const EventRec& eventrec(std::int16_t k)
{
    return recordat(events, k);
}

// The Catalogues; the first two belong to people, the others to events. Written by the load.
extern Catalogue factions;
extern Catalogue occupations;
extern Catalogue groups;
extern Catalogue nations;
extern std::int16_t nfactions;
extern std::int16_t noccupations;
extern std::int16_t ngroups;
extern std::int16_t nnations;

// The date range seen at load: the lowest date1 and the highest date2. Written by the load.
extern std::int16_t mindate;
extern std::int16_t maxdate;

// Another number after each load and each edit, so that what was found out of the Timeline can be kept as long as it
// holds. Raised by whatever changes records, counters or Catalogues: the load, the editors, the delete operations, the
// tools and the tests that fill the Timeline themselves.
extern std::int64_t timelinestate;

// The records that the two editors show. Written by the load (to 0), the editors and the delete operations.
extern std::int16_t curperson;
extern std::int16_t curevent;

// The periods; the slot behind the last stays empty.
inline constexpr std::int16_t lastperiod = 3;
extern const std::array<std::string, lastperiod + 2> periodnames;

extern std::int16_t curperiod; // 0 to lastperiod; written by the settings and the editor chooser
extern std::string curfile;    // the timeline file last asked for; written by loadperiod

// The timeline lock: while it is 1 the editors browse only. Written by the start (to 1) and by tests.
extern std::int16_t viewonly;

// The file of a period, "Medieval.bd3". A period outside 0 to lastperiod gives ".bd3".
std::string periodfile(std::int16_t period);

} // namespace brindor
