#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Separated values as spreadsheets save them: quotes where needed, line breaks of any kind.
namespace brindor::authoring {

struct CsvRecord {
    std::int64_t line = 0; // from 1: where the record starts in the file, line breaks inside quotes counted too
    std::vector<std::string> fields; // without blanks and tabs around them
};

struct CsvFault {
    std::int64_t line = 0;  // where the record starts
    std::size_t column = 0; // from 1
    std::string text;
};

struct CsvTable {
    std::vector<CsvRecord> records;
    std::optional<CsvFault> fault; // records end before it
};

// Empty lines are skipped. A record whose fields are all empty is kept.
CsvTable parsecsv(std::string_view text, char separator);

// One record as a line with commas, ended by a line feed.
std::string csvline(const std::vector<std::string>& fields);

} // namespace brindor::authoring
