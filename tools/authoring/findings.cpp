#include "authoring/findings.h"

#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <string_view>

namespace brindor::authoring {

namespace {

constexpr std::array<std::string_view, 3> words = {": error: ", ": warning: ", ": note: "}; // by Severity

} // namespace

std::string findingline(const Finding& finding)
{
    const std::string line = finding.line > 0 ? ':' + numbertext(finding.line) : std::string();
    return finding.file + line + std::string(words[static_cast<std::size_t>(finding.severity)]) + finding.text;
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
