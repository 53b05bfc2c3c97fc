#pragma once

#include "authoring/findings.h"
#include "authoring/forms.h"

// What can be wrong with a timeline whose fields all could be read.
namespace brindor::authoring {

// An empty or repeated name; a second date before the first. Such a timeline isn't made.
void checkrecords(const Forms& forms, Findings& findings);

// Errors that only the whole timeline shows: the types of question that can't be filled, dates and Catalogue indices
// that no reader expects. The Timeline holds the same records in the same order.
void checktimeline(const Forms& forms, Findings& findings);

// Warnings: descriptions that give a name or a year away, two right answers to one question, texts that are too long
// or missing, names that stand only once. The Timeline holds the same records in the same order.
void checkfairness(const Forms& forms, Findings& findings);

} // namespace brindor::authoring
