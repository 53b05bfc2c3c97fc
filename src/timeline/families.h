#pragma once

#include "timeline/timeline.h"

#include <string_view>

// The two families of items, for code that does the same to both.
namespace brindor {

struct PersonFamily {
    using Record = PersonRec;
    static constexpr double isperson = 1;
    static constexpr std::string_view word = "person";
    static std::vector<PersonRec>& records() { return people; }
    static const PersonRec& record(std::int16_t k) { return personrec(k); }
    static double& count() { return npeople; }
    static std::int16_t& cursor() { return curperson; }
};

struct EventFamily {
    using Record = EventRec;
    static constexpr double isperson = 0;
    static constexpr std::string_view word = "event";
    static std::vector<EventRec>& records() { return events; }
    static const EventRec& record(std::int16_t k) { return eventrec(k); }
    static double& count() { return nevents; }
    static std::int16_t& cursor() { return curevent; }
};

} // namespace brindor
