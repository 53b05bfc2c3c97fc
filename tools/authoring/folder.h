#pragma once

#include "authoring/findings.h"
#include "authoring/forms.h"

#include <string>
#include <string_view>

// The two spreadsheets of a folder, people.csv and events.csv, read and written.
namespace brindor::authoring {

// "folder/name"; the bare name for an empty folder.
std::string inside(const std::string& folder, std::string_view name);

// The records of people.csv and events.csv of a folder, in file order. A record with a fault in it is left out and
// the fault added to `findings`.
Forms readfolder(const std::string& folder, Findings& findings);

// The same for one of the two files; the other's records stay empty.
Forms readevents(const std::string& folder, Findings& findings);

// The forms as the texts of people.csv and events.csv, with a byte order mark, which some spreadsheets need to read
// UTF-8.
std::string peopletext(const Forms& forms);
std::string eventstext(const Forms& forms);

} // namespace brindor::authoring
