#pragma once

#include "authoring/forms.h"

#include <string>

namespace brindor::authoring {

// The forms as the texts of people.csv and events.csv, with a byte order mark, which some spreadsheets need to read
// UTF-8.
std::string peopletext(const Forms& forms);
std::string eventstext(const Forms& forms);

} // namespace brindor::authoring
