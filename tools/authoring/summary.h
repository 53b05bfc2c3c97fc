#pragma once

#include "authoring/findings.h"

#include <string>
#include <vector>

namespace brindor::authoring {

// The balance of timelines as a Markdown table with a column for each folder: how many people and events, of which
// regions, women, rulers, kinds of event, the sizes of the lists, sources and how well known the records are. Regions
// come from regions.csv (name,region) and rulers from rulers.csv (occupation) in the folder above, women, fame and
// sources from the columns of those names; what is missing stands as "not given". Faults go to `findings`.
std::string summarytable(const std::vector<std::string>& folders, Findings& findings);

} // namespace brindor::authoring
