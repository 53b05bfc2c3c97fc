#include "authoring/timelinetext.h"

#include "authoring/csvfile.h"
#include "base/text.h"
#include "timeline/timeline.h"

#include <cstddef>
#include <initializer_list>
#include <span>
#include <vector>

namespace brindor::authoring {

namespace {

constexpr std::string_view byteordermark = "\xEF\xBB\xBF";

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

// As a date stands in the file: an empty second date is the first one again.
std::vector<std::string> itemfields(const ItemForm& form)
{
    const auto kind = [](std::int16_t number) {
        const bool proper = number >= 0 && static_cast<std::size_t>(number) < kindwords.size();
        return proper ? std::string(kindwords[static_cast<std::size_t>(number)]) : numbertext(number);
    };
    const bool single = form.date2 == form.date1 && form.datetype2 == form.datetype1;
    return {form.name,
            numbertext(form.date1),
            kind(form.datetype1),
            single ? "" : numbertext(form.date2),
            single ? "" : kind(form.datetype2),
            form.desc1,
            form.desc2};
}

std::string csvtext(std::span<const Column> columns, const std::vector<std::vector<std::string>>& rows)
{
    std::vector<std::string> headings;
    for (const Column& column : columns) {
        headings.emplace_back(column.name);
    }
    std::string text = std::string(byteordermark) + csvline(headings);
    for (const std::vector<std::string>& row : rows) {
        text += csvline(row);
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

std::string peopletext(const Forms& forms)
{
    std::vector<std::vector<std::string>> rows;
    for (const PersonForm& form : forms.people) {
        rows.push_back(itemfields(form));
        rows.back().insert(rows.back().end(), {form.faction, form.occupation});
    }
    return csvtext(std::span(peoplecolumns).first(writtenpeoplecolumns), rows);
}

std::string eventstext(const Forms& forms)
{
    std::vector<std::vector<std::string>> rows;
    for (const EventForm& form : forms.events) {
        rows.push_back(itemfields(form));
        rows.back().insert(
            rows.back().end(),
            {form.group, form.nation1, form.nation2 == form.nation1 ? "" : form.nation2, "", "", "", form.picture});
    }
    return csvtext(std::span(eventcolumns).first(writteneventcolumns), rows);
}

} // namespace brindor::authoring
