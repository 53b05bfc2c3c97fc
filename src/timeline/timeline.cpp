#include "timeline/timeline.h"

#include "base/numbers.h"

namespace brindor {

std::vector<PersonRec> people;
std::vector<EventRec> events;
double npeople = 0;
double nevents = 0;

Catalogue factions;
Catalogue occupations;
Catalogue groups;
Catalogue nations;
std::int16_t nfactions = 0;
std::int16_t noccupations = 0;
std::int16_t ngroups = 0;
std::int16_t nnations = 0;

std::int16_t mindate = 9999;
std::int16_t maxdate = -25000;

std::int64_t timelinestate = 0;

std::int16_t curperson = 0;
std::int16_t curevent = 0;

const std::array<std::string, lastperiod + 2> periodnames = {"Ancient", "Classic", "Medieval", "Modern", ""};

std::int16_t curperiod = 0;
std::string curfile;
std::int16_t viewonly = 1;

std::int16_t peoplecount()
{
    return roundtoint16(npeople);
}

std::int16_t eventcount()
{
    return roundtoint16(nevents);
}

std::string periodfile(std::int16_t period)
{
    const bool inside = period >= 0 && period <= lastperiod;
    return (inside ? periodnames[static_cast<std::size_t>(period)] : std::string()) + ".bd3";
}

} // namespace brindor
