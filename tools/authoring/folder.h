#pragma once

#include "authoring/csvfile.h"
#include "authoring/findings.h"
#include "authoring/forms.h"

#include <optional>
#include <string>

namespace brindor::authoring {

// "folder/name"; the bare name for an empty folder.
std::string inside(const std::string& folder, std::string_view name);

// The records of people.csv and events.csv of a folder, in file order. A record with a fault in it is left out and
// the fault added to `findings`.
Forms readfolder(const std::string& folder, Findings& findings);

// The same for one of the two files; the other's records stay empty.
Forms readevents(const std::string& folder, Findings& findings);

// The records of a CSV file whose header row must be `columns`. Rows behind a fault are missing. Nothing where the
// file can't be read or its header is another.
std::optional<std::vector<CsvRecord>> readtable(const Source& source, Findings& findings);

} // namespace brindor::authoring
