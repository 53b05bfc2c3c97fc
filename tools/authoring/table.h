#pragma once

#include "authoring/csvfile.h"
#include "authoring/findings.h"
#include "authoring/forms.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brindor::authoring {

// A spreadsheet saved as CSV whose first row holds headings.
struct Table {
    Source source;
    std::vector<CsvRecord> records; // without the headings
};

// Reads a file however a spreadsheet has saved it: separated by commas, semicolons or tabs, in UTF-8 or UTF-16. The
// headings are those of `columns`, in any order, letter case and blanks aside; other columns are left unread. Rows
// behind a fault are missing. Nothing where the file can't be read or a needed column is missing.
std::optional<Table> readtable(const std::string& file, std::span<const Column> columns, Findings& findings);

// The field of a record in a column; empty where there is none.
std::string fieldof(const Source& source, const CsvRecord& record, std::string_view column);

} // namespace brindor::authoring
