#include "mapmaker/maps.h"

#include "authoring/folder.h"
#include "authoring/pictures.h"
#include "base/files.h"
#include "mapmaker/locatormap.h"
#include "mapmaker/picturefile.h"
#include "mapmaker/texts.h"
#include "mapmaker/titlepicture.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace brindor::mapmaker {

using namespace authoring;

namespace {

// What every picture needs; nothing, with the reasons in the findings, where some of it is missing.
std::optional<Coastlines> prepare(Findings& findings)
{
    Result<Coastlines> coastlines = worldcoastlines();
    const Result<Done> fonts = checkfonts();
    for (const std::string& reason : {coastlines.reason, fonts.reason}) {
        if (!reason.empty()) {
            findings.push_back({Severity::error, "mapmaker", 0, reason});
        }
    }
    return haserrors(findings) ? std::nullopt : std::move(coastlines.value);
}

void writepicture(const std::string& file, const std::string& bytes, Findings& findings)
{
    Result<Done> done = makefolder(folderof(file));
    if (done) {
        done = replacefile(file, bytes);
    }
    if (!done) {
        findings.push_back({Severity::error, file, 0, "cannot be written: " + done.reason});
    }
}

} // namespace

Findings drawmaps(const std::string& folder, const std::string& outfolder, const std::string& prefix)
{
    Findings findings;
    Forms forms = readevents(folder, findings);
    sortforms(forms);
    const std::vector<std::string> names = picturenames(forms.events, mapprefix(prefix));
    std::optional<Coastlines> coastlines = prepare(findings);
    if (!coastlines) {
        return findings;
    }
    const LocatorMaps maps(std::move(*coastlines));
    for (std::size_t i = 0; i < names.size() && !haserrors(findings); ++i) {
        const EventForm& form = forms.events[i];
        if (ismap(names[i]) && hasplace(form)) {
            const QImage map = maps.draw({*form.latitude, *form.longitude}, QString::fromStdString(form.place));
            writepicture(inside(outfolder, names[i]), pngbytes(map, mapcolours(), largestmap), findings);
        }
    }
    return findings;
}

Findings drawtitle(const std::string& outfile)
{
    Findings findings;
    const std::optional<Coastlines> coastlines = prepare(findings);
    if (coastlines) {
        writepicture(outfile, bmpbytes(titlepicture(*coastlines)), findings);
    }
    return findings;
}

} // namespace brindor::mapmaker
