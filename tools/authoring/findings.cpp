#include "authoring/findings.h"

#include "base/text.h"

#include <algorithm>
#include <cstddef>
#include <map>

namespace brindor::authoring {

std::string findingline(const Finding& finding)
{
    const std::string line = finding.line > 0 ? ':' + numbertext(finding.line) : std::string();
    return finding.file + line + (finding.severity == Severity::error ? ": error: " : ": warning: ") + finding.text;
}

bool haserrors(const Findings& findings)
{
    return std::any_of(findings.begin(), findings.end(),
                       [](const Finding& finding) { return finding.severity == Severity::error; });
}

void sortfindings(Findings& findings)
{
    std::map<std::string, std::size_t> places;
    for (const Finding& finding : findings) {
        places.emplace(finding.file, places.size());
    }
    std::stable_sort(findings.begin(), findings.end(), [&places](const Finding& a, const Finding& b) {
        return a.file != b.file ? places.at(a.file) < places.at(b.file) : a.line < b.line;
    });
}

} // namespace brindor::authoring
