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

// Warnings: descriptions that give a name or a year away, texts that are too long or missing, names of lists that stand
// only once or within another.
void checktexts(const Forms& forms, Findings& findings);

// Warnings: ranges that cover many other events, reigns among lives. Notes: events that share their date.
void checkdates(const Forms& forms, Findings& findings);

// Warnings: places that lie in the sea, or far from where the same name stands in another row.
void checkplaces(const Forms& forms, Findings& findings);

} // namespace brindor::authoring
