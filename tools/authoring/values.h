#pragma once

#include "base/result.h"

#include <cstdint>
#include <string>
#include <string_view>

// What the fields of a spreadsheet mean. A field in a form that could mean two things is refused with the form to
// write.
namespace brindor::authoring {

// A year: "44 BC", "44 BCE" and "-44" are -44, "AD 800", "800 CE" and "800" are 800.
Result<std::int16_t> yearof(std::string_view field);

// A kind of date, as a DateKind: nothing, "ca." or "reign" in any of the common forms.
Result<std::int16_t> datekindof(std::string_view field);

// A number of degrees up to `limit`, with a decimal point or a decimal comma.
Result<double> degreesof(std::string_view field, double limit);

// A text without blanks of any kind around it, and with plain blanks and minus signs for all others.
std::string plain(std::string_view field);

} // namespace brindor::authoring
