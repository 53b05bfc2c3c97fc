#include "authoring/folder.h"

#include "authoring/words.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <utility>

namespace brindor::authoring {

namespace {

constexpr std::size_t largestfile = 64U << 20U; // bytes

std::string inquotes(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

template <class Names>
std::string listed(const Names& names)
{
    std::string list;
    for (const auto& name : names) {
        list += (list.empty() ? "" : ", ") + std::string(name);
    }
    return list;
}

// A heading as it is compared: "Date 1" is date1.
std::string heading(const std::string& field)
{
    std::string plain = folded(field);
    std::erase_if(plain, [](char c) { return c == ' ' || c == '\t'; });
    return plain;
}

std::vector<std::string> headingsof(const CsvRecord& record)
{
    std::vector<std::string> headings;
    std::transform(record.fields.begin(), record.fields.end(), std::back_inserter(headings), heading);
    while (!headings.empty() && headings.back().empty()) {
        headings.pop_back();
    }
    return headings;
}

std::vector<std::string_view> missingfrom(const std::vector<std::string>& headings, std::span<const Column> columns)
{
    std::vector<std::string_view> missing;
    for (const Column& column : columns) {
        if (column.needed && std::find(headings.begin(), headings.end(), column.name) == headings.end()) {
            missing.push_back(column.name);
        }
    }
    return missing;
}

// What is wrong with the heading row; empty where nothing is.
std::string headingfault(const std::vector<CsvRecord>& records, std::span<const Column> columns)
{
    constexpr std::size_t titlerows = 5;
    const std::vector<std::string> headings = headingsof(records.front());
    const std::vector<std::string_view> missing = missingfrom(headings, columns);
    for (std::size_t i = 1; !missing.empty() && i < std::min(records.size(), titlerows); ++i) {
        if (missingfrom(headingsof(records[i]), columns).empty()) {
            return "the headings stand in line " + numbertext(records[i].line) +
                   "; delete the rows above them, so that they are the first row";
        }
    }
    if (!missing.empty()) {
        return (missing.size() == 1 ? "the column " : "the columns ") + listed(missing) +
               (missing.size() == 1 ? " is" : " are") + " missing; found: " + listed(headings);
    }
    for (const Column& column : columns) {
        const auto first = std::find(headings.begin(), headings.end(), column.name);
        if (first != headings.end() && std::find(first + 1, headings.end(), column.name) != headings.end()) {
            return "the column " + std::string(column.name) + " stands twice; give one of them another name";
        }
    }
    return {};
}

std::vector<std::string> strangers(const CsvRecord& header, std::span<const Column> columns)
{
    std::vector<std::string> names;
    for (const std::string& field : header.fields) {
        const std::string plain = heading(field);
        const bool known =
            std::any_of(columns.begin(), columns.end(), [&plain](const Column& c) { return c.name == plain; });
        if (!plain.empty() && !known) {
            names.push_back(field);
        }
    }
    return names;
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
            refuse(column, inquotes(text) + " is outside -32768 to 32767");
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
        std::string text = field(column) + ';';
        for (std::size_t end = text.find(';'); end != std::string::npos; end = text.find(';')) {
            const std::string part = trimmed(std::string_view(text).substr(0, end));
            if (!part.empty()) {
                found.push_back(part);
            }
            text.erase(0, end + 1);
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
    if (forms.size() > static_cast<std::size_t>(highest16)) {
        findings.push_back({Severity::error, source.file, forms[static_cast<std::size_t>(highest16)].line,
                            "a timeline holds at most 32767 of these records"});
    }
    return forms;
}

// A row with something behind its last heading: most often a text with a comma in it that lacks its quotes.
std::vector<CsvRecord> withoutlongrows(const Source& source, std::vector<CsvRecord> records, Findings& findings)
{
    const std::size_t columns = source.headings.size();
    std::erase_if(records, [&](const CsvRecord& record) {
        const auto behind =
            record.fields.begin() + static_cast<std::ptrdiff_t>(std::min(columns, record.fields.size()));
        const bool toolong =
            std::any_of(behind, record.fields.end(), [](const std::string& field) { return !field.empty(); });
        if (toolong) {
            findings.push_back({Severity::error, source.file, record.line,
                                numbertext(static_cast<std::int64_t>(record.fields.size())) + " fields where " +
                                    numbertext(static_cast<std::int64_t>(columns)) +
                                    " belong; a text with a comma in it must stand in quotes"});
        }
        return toolong;
    });
    return records;
}

} // namespace

std::string inside(const std::string& folder, std::string_view name)
{
    return folder.empty() ? std::string(name) : folder + (folder.back() == '/' ? "" : "/") + std::string(name);
}

std::string fieldof(const Source& source, const CsvRecord& record, std::string_view column)
{
    const auto at = std::find(source.headings.begin(), source.headings.end(), column) - source.headings.begin();
    const auto index = static_cast<std::size_t>(at);
    return index < record.fields.size() ? record.fields[index] : std::string();
}

std::optional<Table> readtable(const std::string& file, std::span<const Column> columns, Findings& findings)
{
    const auto refuse = [&](std::int64_t line, const std::string& text) {
        findings.push_back({Severity::error, file, line, text});
        return std::nullopt;
    };
    const Result<std::string> content = readwhole(file, largestfile);
    if (!content) {
        return refuse(0, "cannot be read: " + content.reason);
    }
    CsvTable csv = parsecsv(*content.value);
    if (csv.records.empty() && !csv.fault) {
        std::vector<std::string_view> names;
        std::transform(columns.begin(), columns.end(), std::back_inserter(names), [](const Column& c) { return c.name; });
        return refuse(1, "the file is empty; its first row must hold the headings " + listed(names));
    }
    Table table;
    table.source.file = file;
    if (!csv.records.empty()) {
        table.source.headings = headingsof(csv.records.front());
    }
    if (csv.fault) {
        const std::size_t column = csv.fault->column;
        const bool named = column <= table.source.headings.size();
        const std::string where = named ? table.source.field(table.source.headings[column - 1])
                                        : "column " + numbertext(static_cast<std::int64_t>(column));
        refuse(csv.fault->line, where + ": " + csv.fault->text);
        if (csv.records.empty()) {
            return std::nullopt;
        }
    }
    const CsvRecord header = csv.records.front();
    if (const std::string fault = headingfault(csv.records, columns); !fault.empty()) {
        const bool semicolons = header.fields.size() == 1 && header.fields.front().find(';') != std::string::npos;
        return refuse(header.line,
                      fault + (semicolons ? "; save the file with commas between the columns, not semicolons" : ""));
    }
    if (const std::vector<std::string> unread = strangers(header, columns); !unread.empty()) {
        findings.push_back({Severity::note, file, header.line,
                            (unread.size() == 1 ? "the column " : "the columns ") + listed(unread) +
                                (unread.size() == 1 ? " is" : " are") + " not known and left unread"});
    }
    csv.records.erase(csv.records.begin());
    table.records = withoutlongrows(table.source, std::move(csv.records), findings);
    return table;
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

} // namespace brindor::authoring
