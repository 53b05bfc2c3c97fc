#pragma once

#include "authoring/findings.h"

#include <string>
#include <vector>

namespace brindor::authoring {

// The balance of timelines as a Markdown table with a column for each folder: how many people and events, of which
// regions, women, rulers, kinds of event, and the sizes of the lists. The regions come from regions.csv (name,region)
// in the folder above, women and rulers from women.csv (name) and rulers.csv (occupation) in the folder itself; what
// is missing stands as "not given". Faults go to `findings`.
std::string summarytable(const std::vector<std::string>& folders, Findings& findings);

} // namespace brindor::authoring
