#include "timeline/writer.h"

#include "base/text.h"
#include "timeline/timeline.h"

#include <cstddef>
#include <initializer_list>

namespace brindor {

namespace {

std::string numberline(std::initializer_list<std::int16_t> numbers)
{
    std::string line;
    for (const std::int16_t number : numbers) {
        line += line.empty() ? "" : ", ";
        line += numbertext(number);
    }
    return line + '\n';
}

std::string block(const std::string& head, const ItemRec& record, const std::string& indices)
{
    return head + '\n' + record.name + '\n' + numberline({record.date1, record.datetype1}) +
           numberline({record.date2, record.datetype2}) + record.desc1 + '\n' + record.desc2 + '\n' + record.desc3 +
           '\n' + indices + record.imagename + '\n' + numberline({record.imagesize1, record.imagesize2});
}

std::string section(const std::string& head, const Catalogue& catalogue)
{
    const auto count = static_cast<std::int64_t>(catalogue.size()) - 1;
    std::string text = head + '\n' + numbertext(count) + '\n';
    for (std::int64_t i = 1; i <= count; ++i) {
        const CatalogueEntry& entry = catalogue[static_cast<std::size_t>(i)];
        text += "-- " + numbertext(i) + '\n' + entry.name + '\n' + numberline({entry.catweight});
    }
    return text;
}

} // namespace

std::string timelinetext()
{
    std::string text = numbertext(peoplecount()) + " -- Number of people in file\n" + numbertext(eventcount()) +
                       " -- Number of events in file\n==== PEOPLE\n";
    for (std::int16_t i = 0; i < peoplecount(); ++i) {
        const PersonRec& record = personrec(i);
        text += block("** " + numbertext(i + 1), record, numberline({record.faction, record.occupation}));
    }
    text += "+++ EVENTS\n";
    for (std::int16_t i = 0; i < eventcount(); ++i) {
        const EventRec& record = eventrec(i);
        text += block("++ " + numbertext(i + 1), record, numberline({record.group, record.nation1, record.nation2}));
    }
    return text + section("=== FACTIONS", factions) + section("=== OCCUPATIONS", occupations) +
           section("=== GROUPS", groups) + section("=== NATIONS", nations);
}

} // namespace brindor
