#pragma once

#include "timeline/timeline.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace brindor {

// The text of two dates: "ca. 1200 to 1250", with `word` between two that differ. A date kind outside 0 to 2, which
// only a hand-made file can hold, gives no text for its date.
std::string datetext(const Dates& dates, std::string_view word);

// The same for an item of the current family.
std::string datetext(std::int16_t item, std::string_view word);

// The nation of an event, or its two nations joined by ", ". Two different indices give two names, even equal ones;
// an index outside the Catalogue gives an empty name, an item outside the events an empty text.
std::string nationtext(std::int16_t item);

// The same texts, added to one that is being put together.
void adddates(std::string& text, const Dates& dates, std::string_view word);
void addnations(std::string& text, const EventRec& event);

} // namespace brindor
