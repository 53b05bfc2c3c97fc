#pragma once

#include "authoring/eventpictures.h"
#include "authoring/forms.h"
#include "base/result.h"
#include "timeline/reader.h"

#include <string>
#include <vector>

// Between forms and the Timeline.
namespace brindor::authoring {

// Fills the Timeline with the records in the order of the forms; `pictures` belong to the events one by one. The
// Catalogues hold the names that the records use, in the order of a list for people, each with the number of records
// that use it as its weight. Fails where there are too many of anything.
Result<Done> puttimeline(const Forms& forms, const std::vector<EventPicture>& pictures);

// The records of the loaded Timeline, in UTF-8. `lines` comes from the load of `file`.
Forms timelineforms(const std::string& file, const RecordLines& lines);

} // namespace brindor::authoring
