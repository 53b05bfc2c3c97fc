#include "support/timelines.h"

#include "base/numbers.h"
#include "timeline/usedmarks.h"

namespace brindor::tests {

Catalogue catalogue(const std::vector<std::string>& names)
{
    Catalogue entries(1);
    for (const std::string& name : names) {
        entries.push_back({name, 0});
    }
    return entries;
}

void settimeline(std::vector<PersonRec> somepeople, std::vector<EventRec> someevents)
{
    npeople = static_cast<double>(somepeople.size());
    nevents = static_cast<double>(someevents.size());
    people = std::move(somepeople);
    people.resize(people.size() + 2);
    events = std::move(someevents);
    events.resize(events.size() + 2);
    curperson = 0;
    curevent = 0;
    ++timelinestate;
    clearmarks();
}

void setcatalogues(const std::vector<std::string>& factionnames, const std::vector<std::string>& occupationnames,
                   const std::vector<std::string>& groupnames, const std::vector<std::string>& nationnames)
{
    factions = catalogue(factionnames);
    occupations = catalogue(occupationnames);
    groups = catalogue(groupnames);
    nations = catalogue(nationnames);
    nfactions = index16(static_cast<std::int64_t>(factionnames.size()));
    noccupations = index16(static_cast<std::int64_t>(occupationnames.size()));
    ngroups = index16(static_cast<std::int64_t>(groupnames.size()));
    nnations = index16(static_cast<std::int64_t>(nationnames.size()));
}

PersonRec person(const std::string& name, Dates dates, const std::string& desc1, const std::string& desc2,
                 std::int16_t faction, std::int16_t occupation)
{
    return {{dates, name, desc1, desc2, "", "", 0, 0, 1}, faction, occupation};
}

EventRec event(const std::string& name, Dates dates, const std::string& desc1, const std::string& desc2,
               std::int16_t group, std::int16_t nation1, std::int16_t nation2)
{
    return {{dates, name, desc1, desc2, "", "", 0, 0, 1}, group, nation1, nation2};
}

Dates year(std::int16_t date)
{
    return years(date, date);
}

Dates years(std::int16_t date1, std::int16_t date2, std::int16_t kind1, std::int16_t kind2)
{
    return {date1, date2, kind1, kind2};
}

void setnumbered(int peoplewanted, int eventswanted)
{
    std::vector<PersonRec> somepeople;
    std::vector<EventRec> someevents;
    std::vector<std::string> factionnames;
    std::vector<std::string> groupnames;
    for (std::int16_t i = 0; i < std::max(peoplewanted, eventswanted); ++i) {
        const std::string number = std::to_string(i);
        const std::int16_t at = index16(i + 1);
        if (i < peoplewanted) {
            factionnames.push_back("Faction " + number);
            somepeople.push_back(person("Person " + number, years(index16(1000 + 10 * i), index16(1005 + 10 * i)),
                                        "Did deed " + number + ".", "And more.", at, at));
        }
        if (i < eventswanted) {
            groupnames.push_back("Group " + number);
            someevents.push_back(event("Event " + number, year(index16(-500 + 10 * i)), "Was thing " + number + ".",
                                       "And more.", at, at, at));
        }
    }
    setcatalogues(factionnames, factionnames, groupnames, groupnames);
    settimeline(std::move(somepeople), std::move(someevents));
}

} // namespace brindor::tests
