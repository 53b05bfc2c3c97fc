#include "authoring/folder.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <utility>

namespace brindor::authoring {

namespace {

constexpr std::size_t largestfile = 64U << 20U; // bytes
constexpr std::size_t fewestpeoplefields = peoplecolumns.size();
constexpr std::size_t feweventfields = 9; // up to nation1; some spreadsheets leave empty fields at a row's end out

std::string inquotes(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

std::string columnlist(std::span<const std::string_view> columns)
{
    std::string list;
    for (const std::string_view column : columns) {
        list += list.empty() ? "" : ",";
        list += column;
    }
    return list;
}

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
        std::string text = field(column);
        if (!isutf8(text)) {
            refuse(column, "the text is not UTF-8; save the file with the character set UTF-8");
        } else if (text.find_first_of("\r\n") != std::string::npos) {
            refuse(column, "the text holds a line break; it must be one line");
        }
        return text;
    }

    std::int16_t year(std::string_view column)
    {
        const std::string text = field(column);
        const std::optional<std::int64_t> number = wholenumber(text);
        if (!number) {
            refuse(column, text.empty() ? "a year is missing" : inquotes(text) + " is not a whole number");
            return 0;
        }
        const std::optional<std::int16_t> fitting = toint16(*number);
        if (!fitting) {
            refuse(column, inquotes(text) + ' ' + std::string(outside16));
        }
        return fitting.value_or(std::int16_t{0});
    }

    std::int16_t kind(std::string_view column)
    {
        const std::string text = field(column);
        const auto found = std::find(kindwords.begin(), kindwords.end(), text);
        if (found == kindwords.end()) {
            refuse(column, inquotes(text) + " is no kind of date; leave it empty or write ca. or reign");
            return known;
        }
        return index16(found - kindwords.begin());
    }

    std::optional<double> degrees(std::string_view column, double limit)
    {
        const std::string text = field(column);
        if (text.empty()) {
            return std::nullopt;
        }
        double number = 0;
        const char* end = text.data() + text.size();
        const auto result = std::from_chars(text.data(), end, number, std::chars_format::fixed);
        if (result.ec != std::errc() || result.ptr != end || !(number >= -limit && number <= limit)) {
            refuse(column, inquotes(text) + " is no number of degrees from " + decimaltext(-limit) + " to " +
                               decimaltext(limit) + ", as 50.91");
        }
        return number;
    }

    bool empty(std::string_view column) const { return field(column).empty(); }

    void refuse(std::string_view column, const std::string& what)
    {
        good_ = false;
        findings_.push_back({Severity::error, source_.file, record_.line, source_.field(column) + ": " + what});
    }

private:
    std::string field(std::string_view column) const
    {
        const auto at = std::find(source_.columns.begin(), source_.columns.end(), column) - source_.columns.begin();
        const auto index = static_cast<std::size_t>(at);
        return index < record_.fields.size() ? record_.fields[index] : std::string();
    }

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
}

void readown(Row& row, PersonForm& form)
{
    form.faction = row.text("faction");
    form.occupation = row.text("occupation");
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

// Empty fields behind the last column don't matter.
bool rightlength(const CsvRecord& record, std::size_t fewest, std::size_t columns)
{
    const auto behind = record.fields.begin() + static_cast<std::ptrdiff_t>(std::min(columns, record.fields.size()));
    return record.fields.size() >= fewest &&
           std::all_of(behind, record.fields.end(), [](const std::string& field) { return field.empty(); });
}

template <class Form>
std::vector<Form> readrecords(const Source& source, std::size_t fewest, Findings& findings)
{
    std::vector<Form> forms;
    const std::optional<std::vector<CsvRecord>> records = readtable(source, findings);
    for (const CsvRecord& record : records ? *records : std::vector<CsvRecord>()) {
        if (iswithoutcontent(record)) {
            continue;
        }
        if (!rightlength(record, fewest, source.columns.size())) {
            findings.push_back({Severity::error, source.file, record.line,
                                numbertext(static_cast<std::int64_t>(record.fields.size())) + " fields where " +
                                    numbertext(static_cast<std::int64_t>(source.columns.size())) +
                                    " belong; a text with a comma in it must stand in quotes"});
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

} // namespace

std::string inside(const std::string& folder, std::string_view name)
{
    return folder.empty() ? std::string(name) : folder + (folder.back() == '/' ? "" : "/") + std::string(name);
}

std::optional<std::vector<CsvRecord>> readtable(const Source& source, Findings& findings)
{
    const Result<std::string> content = readwhole(source.file, largestfile);
    if (!content) {
        findings.push_back({Severity::error, source.file, 0, "cannot be read: " + content.reason});
        return std::nullopt;
    }
    CsvTable table = parsecsv(*content.value);
    const std::string wanted = columnlist(source.columns);
    if (table.records.empty() && !table.fault) {
        findings.push_back({Severity::error, source.file, 1, "the file is empty; its first row must be " + wanted});
        return std::nullopt;
    }
    if (table.fault) {
        const std::size_t column = table.fault->column;
        const bool named = column <= source.columns.size();
        const std::string where = named ? source.field(source.columns[column - 1])
                                        : "column " + numbertext(static_cast<std::int64_t>(column));
        findings.push_back({Severity::error, source.file, table.fault->line, where + ": " + table.fault->text});
        if (table.records.empty()) {
            return std::nullopt;
        }
    }
    const CsvRecord& header = table.records.front();
    const bool same = rightlength(header, source.columns.size(), source.columns.size()) &&
                      std::equal(source.columns.begin(), source.columns.end(), header.fields.begin());
    if (!same) {
        const bool semicolons = header.fields.size() == 1 && header.fields.front().find(';') != std::string::npos;
        findings.push_back({Severity::error, source.file, header.line,
                            "the first row must be " + wanted +
                                (semicolons ? "; save the file with commas between the columns, not semicolons" : "")});
        return std::nullopt;
    }
    table.records.erase(table.records.begin());
    return std::move(table.records);
}

Forms readevents(const std::string& folder, Findings& findings)
{
    Forms forms;
    forms.eventsource = {inside(folder, eventsfile), eventcolumns};
    forms.events = readrecords<EventForm>(forms.eventsource, feweventfields, findings);
    return forms;
}

Forms readfolder(const std::string& folder, Findings& findings)
{
    const Source peoplesource{inside(folder, peoplefile), peoplecolumns};
    std::vector<PersonForm> people = readrecords<PersonForm>(peoplesource, fewestpeoplefields, findings);
    Forms forms = readevents(folder, findings);
    forms.peoplesource = peoplesource;
    forms.people = std::move(people);
    return forms;
}

} // namespace brindor::authoring
