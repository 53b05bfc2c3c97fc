#pragma once

#include "timeline/timeline.h"

namespace brindor::tests {

Catalogue catalogue(const std::vector<std::string>& names);

// Put records into the Timeline as a load does: counters, spare slots, cursors at 0, marks cleared.
void settimeline(std::vector<PersonRec> somepeople, std::vector<EventRec> someevents);
void setcatalogues(const std::vector<std::string>& factionnames, const std::vector<std::string>& occupationnames,
                   const std::vector<std::string>& groupnames, const std::vector<std::string>& nationnames);

PersonRec person(const std::string& name, Dates dates, const std::string& desc1 = "", const std::string& desc2 = "",
                 std::int16_t faction = 0, std::int16_t occupation = 0);
EventRec event(const std::string& name, Dates dates, const std::string& desc1 = "", const std::string& desc2 = "",
               std::int16_t group = 0, std::int16_t nation1 = 0, std::int16_t nation2 = 0);
Dates year(std::int16_t date);
Dates years(std::int16_t date1, std::int16_t date2, std::int16_t kind1 = known, std::int16_t kind2 = known);

// `count` people "Person 0", "Person 1" ... (or events) that all differ in every field that a question compares.
void setnumbered(int peoplewanted, int eventswanted);

} // namespace brindor::tests
