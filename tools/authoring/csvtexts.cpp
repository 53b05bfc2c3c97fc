#include "authoring/csvtexts.h"

#include "authoring/csvfile.h"
#include "base/text.h"

#include <cstddef>
#include <vector>

namespace brindor::authoring {

namespace {

constexpr std::string_view byteordermark = "\xEF\xBB\xBF";

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

std::string csvtext(std::span<const std::string_view> columns, const std::vector<std::vector<std::string>>& rows)
{
    std::string text(byteordermark);
    text += csvline({columns.begin(), columns.end()});
    for (const std::vector<std::string>& row : rows) {
        text += csvline(row);
    }
    return text;
}

} // namespace

std::string peopletext(const Forms& forms)
{
    std::vector<std::vector<std::string>> rows;
    for (const PersonForm& form : forms.people) {
        rows.push_back(itemfields(form));
        rows.back().insert(rows.back().end(), {form.faction, form.occupation});
    }
    return csvtext(peoplecolumns, rows);
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
    return csvtext(eventcolumns, rows);
}

} // namespace brindor::authoring
