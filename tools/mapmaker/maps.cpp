#include "mapmaker/maps.h"

#include "authoring/eventpictures.h"
#include "authoring/folder.h"
#include "authoring/writing.h"
#include "base/picturename.h"
#include "base/text.h"
#include "mapmaker/fonts.h"
#include "mapmaker/icon.h"
#include "mapmaker/locatormap.h"
#include "mapmaker/picturefile.h"
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

Findings drawmaps(const std::string& folder, const std::string& outfolder, const std::string& prefix, bool overwrite)
{
    Findings findings;
    Writing writing(overwrite, findings);
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
    for (std::size_t i = 0; i < names.size(); ++i) {
        const EventForm& form = forms.events[i];
        if (isdrawn(form)) {
            const Position place{*form.latitude, *form.longitude};
            writing.add(outfolder, names[i],
                        maps.file({place, QString::fromStdString(form.place), form.date1, places}));
        }
    }
    writing.commit();
    return findings;
}

Findings drawtitle(const std::string& outfile, bool overwrite)
{
    Findings findings;
    Writing writing(overwrite, findings);
    const std::optional<World> world = needed(readworld(), findings);
    needed(checkfonts(), findings);
    if (!haserrors(findings)) {
        const QImage picture = titlepicture(world->land);
        writing.add(outfile, endsin(outfile, "jpg") ? jpegbytes(picture) : bmpbytes(picture));
    }
    writing.commit();
    return findings;
}

Findings drawicons(const std::string& outfolder, bool overwrite)
{
    Findings findings;
    Writing writing(overwrite, findings);
    for (const int size : iconsizes) {
        writing.add(outfolder, "brindor-" + numbertext(size) + ".png", fullpngbytes(iconpicture(size)));
    }
    writing.add(outfolder, "brindor.svg", iconsvg());
    writing.commit();
    return findings;
}

} // namespace brindor::mapmaker
