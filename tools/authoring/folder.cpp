#include "authoring/folder.h"

#include "authoring/csvfile.h"
#include "authoring/table.h"
#include "authoring/values.h"
#include "authoring/words.h"
#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>

namespace brindor::authoring {

namespace {

constexpr std::size_t longesttext = 1000; // bytes
constexpr std::string_view byteordermark = "\xEF\xBB\xBF";

// One row being read: each field is asked for by its column's name, and what is wrong with it goes to the findings.
class Row {
public:
    Row(const Source& source, const CsvRecord& record, Findings& findings)
        : source_(source), record_(record), findings_(findings)
    {
    }

    bool good() const { return good_; }

    std::string text(std::string_view column)
    {
        const std::string text = field(column);
        if (text.find_first_of("\r\n") != std::string::npos) {
            refuse(column, "the text holds a line break; it must be one line");
        } else if (std::any_of(text.begin(), text.end(), iscontrol)) {
            refuse(column, "the text holds a character that cannot be shown; type the text anew");
        } else if (text.size() > longesttext) {
            refuse(column, "a text of " + numbertext(static_cast<std::int64_t>(text.size())) +
                               " bytes is more than any screen shows");
        }
        return text;
    }

    std::int16_t year(std::string_view column)
    {
        const std::string text = field(column);
        return text.empty() ? (refuse(column, "a year is missing"), std::int16_t{0}) : taken(column, yearof(text));
    }

    std::int16_t kind(std::string_view column) { return taken(column, datekindof(field(column))); }

    std::optional<double> degrees(std::string_view column, double limit)
    {
        const std::string text = field(column);
        return text.empty() ? std::nullopt : std::optional(taken(column, degreesof(text, limit)));
    }

    std::int16_t fame(std::string_view column)
    {
        const std::string text = field(column);
        const std::optional<std::int64_t> number = wholenumber(text);
        if (!text.empty() && (!number || *number < 1 || *number > 5)) {
            refuse(column, inquotes(text) + " is no fame; write 1 (everyone has heard of it) to 5 (specialists)");
        }
        return index16(number.value_or(0));
    }

    bool yes(std::string_view column)
    {
        const std::string text = folded(field(column));
        if (!text.empty() && text != "yes" && text != "no") {
            refuse(column, inquotes(text) + " is neither yes nor no");
        }
        return text == "yes";
    }

    // Texts joined by semicolons.
    std::vector<std::string> parts(std::string_view column)
    {
        std::vector<std::string> found;
        const std::string text = field(column);
        for (std::string_view rest = text; !rest.empty();) {
            const std::size_t end = std::min(rest.find(';'), rest.size());
            if (std::string part = plain(rest.substr(0, end)); !part.empty()) {
                found.push_back(std::move(part));
            }
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
        return found;
    }

    bool empty(std::string_view column) const { return field(column).empty(); }

    void refuse(std::string_view column, const std::string& what)
    {
        good_ = false;
        findings_.push_back({Severity::error, source_.file, record_.line, source_.field(column) + ": " + what});
    }

private:
    template <class T>
    T taken(std::string_view column, const Result<T>& value)
    {
        if (!value) {
            refuse(column, value.reason);
        }
        return value.value.value_or(T{});
    }

    std::string field(std::string_view column) const { return fieldof(source_, record_, column); }

    const Source& source_;
    const CsvRecord& record_;
    Findings& findings_;
    bool good_ = true;
};

void readitem(Row& row, const CsvRecord& record, ItemForm& form)
{
    form.line = record.line;
    form.name = row.text("name");
    form.date1 = row.year("date1");
    form.datetype1 = row.kind("kind1");
    const bool single = row.empty("date2");
    form.date2 = single ? form.date1 : row.year("date2");
    form.datetype2 = single && row.empty("kind2") ? form.datetype1 : row.kind("kind2");
    form.desc1 = row.text("desc1");
    form.desc2 = row.text("desc2");
    form.fame = row.fame("fame");
    form.sources = row.parts("source");
}

void readown(Row& row, PersonForm& form)
{
    form.faction = row.text("faction");
    form.occupation = row.text("occupation");
    form.woman = row.yes("woman");
}

void readown(Row& row, EventForm& form)
{
    form.group = row.text("group");
    form.nation1 = row.text("nation1");
    form.nation2 = row.empty("nation2") ? form.nation1 : row.text("nation2");
    form.place = row.text("place");
    form.latitude = row.degrees("latitude", 90);
    form.longitude = row.degrees("longitude", 180);
    form.picture = row.text("picture");
    const bool anything = !row.empty("place") || !row.empty("latitude") || !row.empty("longitude");
    for (const char* column : {"place", "latitude", "longitude"}) {
        if (form.picture.empty() && anything && row.empty(column)) {
            row.refuse(column, "missing; a map needs place, latitude and longitude");
        }
    }
}

bool iswithoutcontent(const CsvRecord& record)
{
    return std::all_of(record.fields.begin(), record.fields.end(),
                       [](const std::string& field) { return field.empty(); });
}

template <class Form>
std::vector<Form> readrecords(Source& source, std::span<const Column> columns, Findings& findings)
{
    std::vector<Form> forms;
    const std::optional<Table> table = readtable(source.file, columns, findings);
    if (!table) {
        return forms;
    }
    source = table->source;
    for (const CsvRecord& record : table->records) {
        if (iswithoutcontent(record)) {
            continue;
        }
        Row row(source, record, findings);
        Form form;
        readitem(row, record, form);
        readown(row, form);
        if (row.good()) {
            forms.push_back(std::move(form));
        }
    }
    if (forms.size() > static_cast<std::size_t>(mostrecords)) {
        findings.push_back({Severity::error, source.file, forms[static_cast<std::size_t>(mostrecords)].line,
                            "a timeline holds at most " + numbertext(mostrecords) + " of these records"});
    }
    return forms;
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

std::string inside(const std::string& folder, std::string_view name)
{
    return folder.empty() ? std::string(name) : folder + (folder.back() == '/' ? "" : "/") + std::string(name);
}

Forms readevents(const std::string& folder, Findings& findings)
{
    Forms forms;
    forms.eventsource.file = inside(folder, eventsfile);
    forms.events = readrecords<EventForm>(forms.eventsource, eventcolumns, findings);
    return forms;
}

Forms readfolder(const std::string& folder, Findings& findings)
{
    Source peoplesource{inside(folder, peoplefile), {}};
    std::vector<PersonForm> people = readrecords<PersonForm>(peoplesource, peoplecolumns, findings);
    Forms forms = readevents(folder, findings);
    forms.peoplesource = std::move(peoplesource);
    forms.people = std::move(people);
    return forms;
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
