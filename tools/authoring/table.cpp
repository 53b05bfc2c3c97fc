#include "authoring/table.h"

#include "authoring/values.h"
#include "authoring/words.h"
#include "base/files.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <unicode/unistr.h>
#include <utility>

namespace brindor::authoring {

namespace {

constexpr std::size_t largestfile = 64U << 20U; // bytes
constexpr std::size_t titlerows = 5;            // above the headings, at most

struct Separator {
    char character;
    std::string_view word;
};

constexpr std::array<Separator, 3> separators = {{{',', "comma"}, {';', "semicolon"}, {'\t', "tab"}}};

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
    std::string name = folded(plain(field));
    std::erase_if(name, [](char c) { return c == ' ' || c == '\t'; });
    return name;
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
    const std::vector<std::string> headings = headingsof(records.front());
    const std::vector<std::string_view> missing = missingfrom(headings, columns);
    for (std::size_t i = 1; !missing.empty() && i < std::min(records.size(), titlerows); ++i) {
        if (missingfrom(headingsof(records[i]), columns).empty()) {
            return "this is no row of headings; they stand in line " + numbertext(records[i].line) +
                   ", so delete the rows above that";
        }
    }
    if (!missing.empty()) {
        return (missing.size() == 1 ? "the column " : "the columns ") + listed(missing) +
               (missing.size() == 1 ? " is" : " are") +
               " missing; found: " + (headings.empty() ? "nothing" : listed(headings));
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
        const std::string name = heading(field);
        const bool known =
            std::any_of(columns.begin(), columns.end(), [&name](const Column& c) { return c.name == name; });
        if (!name.empty() && !known) {
            names.push_back(field);
        }
    }
    return names;
}

// How many of the columns the best of the first rows names.
std::size_t headingsfound(const std::vector<CsvRecord>& records, std::span<const Column> columns)
{
    std::size_t most = 0;
    for (std::size_t i = 0; i < std::min(records.size(), titlerows); ++i) {
        const std::vector<std::string> headings = headingsof(records[i]);
        const auto found = std::count_if(columns.begin(), columns.end(), [&headings](const Column& column) {
            return std::find(headings.begin(), headings.end(), column.name) != headings.end();
        });
        most = std::max(most, static_cast<std::size_t>(found));
    }
    return most;
}

// What separates the columns, seen from the headings.
const Separator& separatorof(std::string_view text, std::span<const Column> columns)
{
    constexpr std::size_t headsize = 16384; // bytes: more than the first rows need
    const Separator* best = separators.data();
    std::size_t most = 0;
    for (const Separator& separator : separators) {
        const CsvTable head = parsecsv(text.substr(0, headsize), separator.character);
        if (const std::size_t found = headingsfound(head.records, columns); found > most) {
            most = found;
            best = &separator;
        }
    }
    return *best;
}

// The line "sep=;", by which some spreadsheets tell the separator, becomes an empty one, so that lines count on.
void blankseparatorline(std::string& text)
{
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    const std::string line = folded(text.substr(0, end));
    if (line.starts_with("sep=") || line.starts_with("\"sep=")) {
        text.erase(0, end);
    }
}

// The text of a file in UTF-8 without a mark.
Result<std::string> decoded(const std::string& bytes)
{
    const auto begins = [&bytes](std::string_view with) { return bytes.starts_with(with); };
    if (begins("PK\x03\x04") || begins("\xD0\xCF\x11\xE0")) {
        return {std::nullopt,
                "this is a spreadsheet's own file; open it in the spreadsheet and save it as \"CSV UTF-8\" or "
                "\"Text CSV\""};
    }
    if (begins("\xFF\xFE") || begins("\xFE\xFF")) {
        std::string text;
        icu::UnicodeString(bytes.data(), static_cast<std::int32_t>(bytes.size()), "UTF-16").toUTF8String(text);
        return {std::move(text), {}};
    }
    if (!isutf8(bytes)) {
        return {std::nullopt,
                "the file is not in UTF-8, so letters with accents would be lost; in Excel save it as "
                "\"CSV UTF-8\", in LibreOffice as \"Text CSV\" with the character set \"Unicode (UTF-8)\""};
    }
    return {std::string(withoutmark(bytes)), {}};
}

// Advice where the spreadsheet lies there in its own form.
std::string unsaved(const std::string& file)
{
    for (const char* ending : {".ods", ".xlsx", ".xls"}) {
        const std::string own = file.substr(0, file.find_last_of('.')) + ending;
        if (isregularfile(own)) {
            return "; open " + own + " in the spreadsheet and save it as \"CSV UTF-8\" or \"Text CSV\"";
        }
    }
    return {};
}

// A row with something behind its last heading: most often a text with a separator in it that lacks its quotes.
std::vector<CsvRecord> withoutlongrows(const Source& source, std::string_view separator, std::vector<CsvRecord> records,
                                       Findings& findings)
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
                                    numbertext(static_cast<std::int64_t>(columns)) + " belong; a text with a " +
                                    std::string(separator) + " in it must stand in quotes"});
        }
        return toolong;
    });
    return records;
}

} // namespace

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
        return refuse(0, "cannot be read: " + content.reason + unsaved(file));
    }
    Result<std::string> text = decoded(*content.value);
    if (!text) {
        return refuse(0, text.reason);
    }
    blankseparatorline(*text.value);
    const Separator& separator = separatorof(*text.value, columns);
    CsvTable csv = parsecsv(*text.value, separator.character);
    if (csv.records.empty() && !csv.fault) {
        std::vector<std::string_view> names;
        std::transform(columns.begin(), columns.end(), std::back_inserter(names),
                       [](const Column& c) { return c.name; });
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
        return refuse(header.line, fault);
    }
    if (const std::vector<std::string> unread = strangers(header, columns); !unread.empty()) {
        findings.push_back({Severity::note, file, header.line,
                            (unread.size() == 1 ? "the column " : "the columns ") + listed(unread) +
                                (unread.size() == 1 ? " is" : " are") + " not known and left unread"});
    }
    csv.records.erase(csv.records.begin());
    table.records = withoutlongrows(table.source, separator.word, std::move(csv.records), findings);
    return table;
}

} // namespace brindor::authoring
