#include "mapmaker/maps.h"

#include "authoring/folder.h"
#include "authoring/pictures.h"
#include "base/files.h"
#include "base/text.h"
#include "mapmaker/icon.h"
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

// A fault of the installation, not of what is drawn.
template <class T>
std::optional<T> needed(Result<T> result, Findings& findings)
{
    if (!result) {
        findings.push_back({Severity::error, "mapmaker", 0, result.reason});
    }
    return std::move(result.value);
}

// A picture that stands there already is left alone, with its time. Its folder must be there.
void writepicture(const std::string& file, const std::string& bytes, Findings& findings)
{
    const Result<std::string> old = readwhole(file, bytes.size());
    if (old && *old.value == bytes) {
        return;
    }
    if (const Result<Done> done = replacefile(file, bytes); !done) {
        findings.push_back({Severity::error, file, 0, "cannot be written: " + done.reason});
    }
}

std::vector<Position> placesof(const std::vector<EventForm>& events)
{
    std::vector<Position> places;
    for (const EventForm& form : events) {
        if (hasplace(form)) {
            places.push_back({*form.latitude, *form.longitude});
        }
    }
    return places;
}

} // namespace

Findings drawmaps(const std::string& folder, const std::string& outfolder, const std::string& prefix)
{
    Findings findings;
    Forms forms = readevents(folder, findings);
    sortforms(forms);
    const std::vector<std::string> names = picturenames(forms.events, mapprefix(prefix));
    std::optional<World> world = needed(readworld(), findings);
    std::optional<std::vector<PlaceName>> placenames = needed(worldnames(), findings);
    needed(checkfonts(), findings);
    if (haserrors(findings)) {
        return findings;
    }
    const LocatorMaps maps(std::move(*world), std::move(*placenames));
    const std::vector<Position> places = placesof(forms.events);
    for (std::size_t i = 0; i < names.size() && findings.empty(); ++i) {
        const EventForm& form = forms.events[i];
        if (ismap(names[i]) && hasplace(form)) {
            const Position place{*form.latitude, *form.longitude};
            const std::string map = maps.file({place, QString::fromStdString(form.place), form.date1, places});
            const std::string file = inside(outfolder, names[i]);
            makefolder(folderof(file)); // where that fails, so does the writing, which tells it
            writepicture(file, map, findings);
        }
    }
    return findings;
}

Findings drawtitle(const std::string& outfile)
{
    Findings findings;
    const std::optional<World> world = needed(readworld(), findings);
    needed(checkfonts(), findings);
    if (!haserrors(findings)) {
        writepicture(outfile, bmpbytes(titlepicture(world->land)), findings);
    }
    return findings;
}

Findings drawicons(const std::string& outfolder)
{
    Findings findings;
    for (const int size : iconsizes) {
        const std::string file = inside(outfolder, "brindor-" + numbertext(size) + ".png");
        writepicture(file, fullpngbytes(iconpicture(size)), findings);
    }
    writepicture(inside(outfolder, "brindor.svg"), iconsvg(), findings);
    return findings;
}

} // namespace brindor::mapmaker
