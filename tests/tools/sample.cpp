#include "tools/sample.h"

namespace brindor::tests {

std::string sample(const std::string& name)
{
    fs::copy(SAMPLES "/" + name, name, fs::copy_options::recursive);
    return name;
}

void writegood(const std::string& peoplerows, const std::string& eventrows, const std::string& into)
{
    fs::create_directories(into);
    writefile(into + "/people.csv", contentof(SAMPLES "/good/people.csv") + peoplerows);
    writefile(into + "/events.csv", contentof(SAMPLES "/good/events.csv") + eventrows);
}

std::string report(const authoring::Findings& findings)
{
    std::string text;
    for (const authoring::Finding& finding : findings) {
        text += authoring::findingline(finding) + '\n';
    }
    return text;
}

std::string errors(authoring::Findings findings)
{
    std::erase_if(findings, [](const auto& finding) { return finding.severity != authoring::Severity::error; });
    return report(findings);
}

std::string errors(const authoring::Report& report)
{
    return errors(report.findings) + report.said;
}

std::string bmpfile(int width, int height)
{
    std::string bytes = "BM" + std::string(56, '\0');
    bytes[10] = 54; // where the pixels begin, behind two headers
    bytes[14] = 40;
    bytes[18] = static_cast<char>(width);
    bytes[22] = static_cast<char>(height);
    bytes[26] = 1;
    bytes[28] = 24; // bits a pixel
    return bytes;
}

} // namespace brindor::tests
