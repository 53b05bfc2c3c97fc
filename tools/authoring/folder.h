#pragma once

#include "authoring/csvfile.h"
#include "authoring/findings.h"
#include "authoring/forms.h"

#include <optional>
#include <span>
#include <string>

namespace brindor::authoring {

// "folder/name"; the bare name for an empty folder.
std::string inside(const std::string& folder, std::string_view name);

// The records of people.csv and events.csv of a folder, in file order. A record with a fault in it is left out and
// the fault added to `findings`.
Forms readfolder(const std::string& folder, Findings& findings);

// The same for one of the two files; the other's records stay empty.
Forms readevents(const std::string& folder, Findings& findings);

struct Table {
    Source source;
    std::vector<CsvRecord> records; // without the headings
};

// A CSV file whose first row holds the headings: those of `columns`, in any order, letter case and blanks aside;
// other columns are left unread. Rows behind a fault are missing. Nothing where the file can't be read or a needed
// column is missing.
std::optional<Table> readtable(const std::string& file, std::span<const Column> columns, Findings& findings);

// The field of a record in a column; empty where there is none.
std::string fieldof(const Source& source, const CsvRecord& record, std::string_view column);

} // namespace brindor::authoring
