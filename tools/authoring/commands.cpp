#include "authoring/commands.h"

#include "authoring/checks.h"
#include "authoring/commandline.h"
#include "authoring/conversion.h"
#include "authoring/eventpictures.h"
#include "authoring/folder.h"
#include "authoring/writing.h"
#include "base/files.h"
#include "base/picturename.h"
#include "base/text.h"
#include "timeline/reader.h"
#include "timeline/writer.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace brindor::authoring {

namespace {

void fail(Findings& findings, const std::string& file, const std::string& what)
{
    findings.push_back({Severity::error, file, 0, what});
}

// The reader's failure text names the file and the line in its own form, "Modern.bd3, line 12: ...".
Finding readerfinding(const std::string& file, const std::string& failure)
{
    const std::string withline = file + ", line ";
    const std::size_t colon = failure.find(": ", withline.size());
    if (failure.starts_with(withline) && colon != std::string::npos) {
        return {Severity::error, file, leadingnumber(failure.substr(withline.size())), failure.substr(colon + 2)};
    }
    const std::string withoutline = file + ' ';
    const std::size_t start = failure.starts_with(withoutline) ? withoutline.size() : 0;
    return {Severity::error, file, 0, failure.substr(start)};
}

std::optional<Forms> readfile(const std::string& file, Findings& findings)
{
    RecordLines lines;
    const Result<Done> filled = filltimeline(file, &lines);
    if (!filled) {
        findings.push_back(readerfinding(file, filled.reason));
        return std::nullopt;
    }
    return timelineforms(file, lines);
}

// The records of a folder's spreadsheets, examined whole and put into the Timeline.
Forms examined(const std::string& folder, const std::string& prefix, Findings& findings)
{
    Forms forms = readfolder(folder, findings);
    const bool complete = !haserrors(findings);
    checkrecords(forms, findings);
    sortforms(forms);
    const std::vector<EventPicture> pictures = findpictures(forms, prefix, folder, findings);
    if (const Result<Done> put = puttimeline(forms, pictures); !put) {
        fail(findings, folder, put.reason);
        return forms;
    }
    if (complete) { // records left out would make a type look as if it could not be filled
        checktimeline(forms, findings);
    }
    checktexts(forms, findings);
    checkdates(forms, findings);
    checkplaces(forms, findings);
    sortfindings(findings);
    return forms;
}

bool isdigit(char c)
{
    return c >= '0' && c <= '9';
}

// "40 people, 40 events"
std::string counts(const Forms& forms)
{
    return counttext(forms.people.size(), "person", "people") + ", " +
           counttext(forms.events.size(), "event", "events");
}

// The maps that are not there yet, with the command that draws them.
std::string undrawn(const Forms& forms, const std::string& prefix, const std::string& outfolder)
{
    const std::vector<std::string> names = picturenames(forms.events, prefix);
    std::int64_t count = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        count += isdrawn(forms.events[i]) && !isregularfile(inside(outfolder, names[i])) ? 1 : 0;
    }
    if (count == 0) {
        return {};
    }
    return "; " + numbertext(count) + (count == 1 ? " map is" : " maps are") +
           " not drawn yet, which mapmaker maps does";
}

constexpr std::string_view examplepeople =
    "Zheng He,1371,ca.,1433,ca.,Led treasure fleets across the Indian Ocean.,Brought a giraffe home.,China,Explorer\n"
    "Gerardus Mercator,1512,,1594,,Drew a chart for steady courses.,,Flanders,Mapmaker\n"
    "Sacagawea,1788,ca.,1812,,Guided two captains to the western sea.,,Shoshone,Explorer\n";
constexpr std::string_view exampleevents =
    "Fall of Constantinople,1453,,,,Great cannon broke the land walls.,,War,Ottoman Empire,Byzantium,Constantinople,"
    "41.01,28.98,\n"
    "First landfall of Columbus,1492,,,,Three ships from Palos came to an island.,,Exploration,Spain,,San Salvador,"
    "24.05,-74.50,\n"
    "Portrait of Mona Lisa,1503,ca.,1519,ca.,The sitter of a long work in Florence smiles.,,Art,Italy,,Florence,43.77,"
    "11.26,\n";

} // namespace

Report maketimeline(const std::string& folder, const std::string& file, bool overwrite)
{
    Report report;
    if (!istimelinefile(file)) {
        fail(report.findings, file, "is no name for a timeline; it must end in .bd3, as Modern.bd3");
        return report;
    }
    const std::string prefix = mapprefix(file);
    const Forms forms = examined(folder, prefix, report.findings);
    Writing writing(overwrite, report.findings);
    if (!haserrors(report.findings)) {
        takepictures(forms.events, folder, file, writing, report.findings);
        writing.add(file, timelinetext());
    }
    if (writing.commit()) {
        report.said =
            file.substr(file.find_last_of('/') + 1) + ": " + counts(forms) + undrawn(forms, prefix, folderof(file));
    }
    return report;
}

Findings checkfolder(const std::string& folder)
{
    Findings findings;
    examined(folder, mapprefix(titleof(folder)), findings);
    return findings;
}

Findings checkfile(const std::string& file)
{
    Findings findings;
    if (const std::optional<Forms> forms = readfile(file, findings)) {
        checkrecords(*forms, findings);
        checkpictures(*forms, file, findings);
        checktimeline(*forms, findings);
        checktexts(*forms, findings);
        checkdates(*forms, findings);
        sortfindings(findings);
    }
    return findings;
}

Report exporttimeline(const std::string& file, const std::string& folder, bool overwrite)
{
    Report report;
    std::optional<Forms> forms = readfile(file, report.findings);
    if (!forms) {
        return report;
    }
    Writing writing(overwrite, report.findings);
    takeback(*forms, file, folder, writing, report.findings);
    writing.add(folder, std::string(peoplefile), peopletext(*forms));
    writing.add(folder, std::string(eventsfile), eventstext(*forms));
    if (writing.commit()) {
        report.said = folder + ": " + counts(*forms);
    }
    return report;
}

Report newtimeline(const std::string& folder, char separator)
{
    // A spreadsheet that separates by semicolons takes 24.05 for a date in May. The examples hold no comma of their
    // own.
    const auto separated = [separator](std::string text) {
        if (separator != ',') {
            std::replace(text.begin(), text.end(), ',', separator);
            for (std::size_t at = text.find('.'); at != std::string::npos; at = text.find('.', at + 1)) {
                const bool decimal = at > 0 && isdigit(text[at - 1]) && at + 1 < text.size() && isdigit(text[at + 1]);
                text[at] = decimal ? ',' : '.';
            }
        }
        return text;
    };
    Report report;
    Writing writing(false, report.findings);
    Forms forms;
    writing.add(folder, std::string(peoplefile), separated(peopletext(forms) + std::string(examplepeople)));
    writing.add(folder, std::string(eventsfile), separated(eventstext(forms) + std::string(exampleevents)));
    if (writing.commit()) {
        report.said = folder +
                      ": people.csv and events.csv with three example rows each; write your own rows, then "
                      "timelinemaker play " +
                      inshell(folder);
    }
    return report;
}

bool istimelinefile(std::string_view target)
{
    return endsin(target, "bd3");
}

bool loadtarget(const std::string& target, Findings& findings)
{
    Findings own;
    if (istimelinefile(target)) {
        readfile(target, own);
    } else {
        Forms forms = readfolder(target, own);
        sortforms(forms);
        if (const Result<Done> put = puttimeline(forms, std::vector<EventPicture>(forms.events.size())); !put) {
            fail(own, target, put.reason);
        }
    }
    const bool loaded = !haserrors(own);
    findings.insert(findings.end(), own.begin(), own.end());
    return loaded;
}

std::string titleof(std::string target)
{
    while (target.size() > 1 && target.ends_with('/')) {
        target.pop_back();
    }
    std::string title = target.substr(target.find_last_of('/') + 1);
    if (istimelinefile(title)) {
        title.resize(title.size() - 4);
    }
    if (!title.empty()) {
        title.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(title.front())));
    }
    return title;
}

} // namespace brindor::authoring
