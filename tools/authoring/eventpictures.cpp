#include "authoring/eventpictures.h"

#include "authoring/folder.h"
#include "authoring/notes.h"
#include "authoring/words.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/picturename.h"
#include "base/text.h"

#include <cmath>
#include <cstddef>
#include <libexif/exif-data.h>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stb_image.h>
#include <string_view>
#include <utility>

namespace brindor::authoring {

namespace {

constexpr std::string_view mapfolder = "maps/";
constexpr double shape = static_cast<double>(mapwidth) / mapheight;
constexpr double tolerance = 0.03; // of the shape; what nobody sees
constexpr std::size_t fewtold = 3; // events without a picture that are told one by one

struct Measured {
    std::int16_t width = 0;
    std::int16_t height = 0;
    bool marked = false; // carries a mark by which it is turned when it is shown
};

// The mark of a photograph that says how it is turned; 1 is upright.
int orientation(const std::string& content)
{
    const std::unique_ptr<ExifData, decltype(&exif_data_unref)> data(
        exif_data_new_from_data(reinterpret_cast<const unsigned char*>(content.data()),
                                static_cast<unsigned>(content.size())),
        exif_data_unref);
    const ExifEntry* entry = data ? exif_content_get_entry(data->ifd[EXIF_IFD_0], EXIF_TAG_ORIENTATION) : nullptr;
    return entry != nullptr && entry->size >= 2 ? exif_get_short(entry->data, exif_data_get_byte_order(data.get())) : 1;
}

Result<Measured> measured(const std::string& content)
{
    int width = 0;
    int height = 0;
    int channels = 0;
    const auto* bytes = reinterpret_cast<const stbi_uc*>(content.data());
    const bool known = ispicture(content) &&
                       content.size() <= static_cast<std::size_t>(std::numeric_limits<int>::max()) &&
                       stbi_info_from_memory(bytes, static_cast<int>(content.size()), &width, &height, &channels) != 0;
    const std::optional<std::int16_t> fittingwidth = toint16(width);
    const std::optional<std::int16_t> fittingheight = toint16(height);
    if (!known || !fittingwidth || !fittingheight) {
        return {std::nullopt, "is no picture in a known form; save it as png, jpg, bmp or gif"};
    }
    constexpr int firstofsideways = 5;
    const int turned = orientation(content);
    return {turned >= firstofsideways ? Measured{*fittingheight, *fittingwidth, true}
                                      : Measured{*fittingwidth, *fittingheight, turned > 1},
            {}};
}

// The content of a picture that lies in a folder or below it.
Result<std::string> contentof(const std::string& folder, const std::string& name)
{
    const Result<std::string> file = picturefile(folder, name);
    return file ? readwhole(*file.value, largestpicturefile) : file;
}

bool ismap(const std::string& picture)
{
    return picture.starts_with(mapfolder);
}

std::string missing(const std::string& name, const std::string& reason)
{
    return name + (picturenamefault(name).empty() ? " cannot be opened: " : ": ") + reason;
}

// A map that was drawn elsewhere may be missing: the event can be played without it, and it can't be drawn here.
EventPicture ownpicture(const EventForm& form, const std::string& name, const std::string& folder, Notes& notes)
{
    const Result<std::string> content = contentof(folder, form.picture);
    if (!content && ismap(form.picture) && picturenamefault(form.picture).empty()) {
        notes.warning(form, "picture",
                      missing(form.picture, content.reason) + "; give place, latitude and longitude "
                                                              "and no picture, and it is drawn anew");
        return {name, mapwidth, mapheight};
    }
    if (!content) {
        notes.error(form, "picture", missing(form.picture, content.reason));
        return {};
    }
    const Result<Measured> size = measured(*content.value);
    if (!size) {
        notes.error(form, "picture", form.picture + ' ' + size.reason);
        return {};
    }
    const auto [width, height, marked] = *size.value;
    if (std::abs(static_cast<double>(width) / std::max<std::int16_t>(height, 1) / shape - 1) > tolerance) {
        notes.warning(form, "picture",
                      form.picture + " is " + numbertext(width) + " x " + numbertext(height) +
                          " pixels and will be stretched to 4:3; cut it to that shape, as 640 x 480");
    }
    if (marked) {
        notes.note(form, "picture", form.picture + " carries a rotation mark, which is respected when it is shown");
    }
    if (ismap(form.picture) && hasplace(form)) {
        notes.warning(form, "picture",
                      form.picture +
                          " is a map that was drawn before, and stays; empty this column, "
                          "and the map of " +
                          form.place + " is drawn");
    }
    return {name, width, height};
}

} // namespace

bool hasplace(const EventForm& form)
{
    return form.latitude && form.longitude;
}

bool isdrawn(const EventForm& form)
{
    return form.picture.empty() && hasplace(form);
}

std::string mapprefix(const std::string& timelinefile)
{
    const std::string name = timelinefile.substr(timelinefile.find_last_of('/') + 1);
    return slug(endsin(name, "bd3") ? name.substr(0, name.find_last_of('.')) : name);
}

std::vector<std::string> picturenames(const std::vector<EventForm>& events, const std::string& prefix)
{
    std::set<std::string> taken;
    for (const EventForm& form : events) {
        taken.insert(prefix + '/' + form.picture);
    }
    std::map<std::string, std::int64_t> last; // number given to a stem
    std::vector<std::string> names;
    for (const EventForm& form : events) {
        std::string name = form.picture.empty() ? "" : prefix + '/' + form.picture;
        if (isdrawn(form)) {
            const std::string stem = prefix + '/' + std::string(mapfolder) + slug(form.name);
            std::int64_t& number = last.try_emplace(stem, 0).first->second;
            do {
                name = stem + (++number == 1 ? "" : '-' + numbertext(number)) + ".png";
            } while (!taken.insert(name).second);
        }
        names.push_back(name);
    }
    return names;
}

std::vector<EventPicture> findpictures(const Forms& forms, const std::string& prefix, const std::string& folder,
                                       Findings& findings)
{
    Notes notes(forms.eventsource, findings);
    std::vector<EventPicture> pictures;
    std::vector<const EventForm*> without;
    const std::vector<std::string> names = picturenames(forms.events, prefix);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const EventForm& form = forms.events[i];
        if (isdrawn(form)) {
            pictures.push_back({names[i], mapwidth, mapheight});
        } else if (form.picture.empty()) {
            pictures.emplace_back();
            without.push_back(&form);
        } else {
            pictures.push_back(ownpicture(form, names[i], folder, notes));
        }
    }
    const std::string advice = "; give place, latitude and longitude for a map, or a picture of your own";
    if (without.size() > fewtold) {
        notes.add(Severity::warning, 1,
                  numbertext(static_cast<std::int64_t>(without.size())) + " events have no picture" + advice);
    } else {
        for (const EventForm* form : without) {
            notes.warning(*form, "picture", "the event has no picture" + advice);
        }
    }
    return pictures;
}

void checkpictures(const Forms& forms, const std::string& timelinefile, Findings& findings)
{
    Notes notes(forms.eventsource, findings);
    const std::string folder = folderof(timelinefile);
    for (const EventForm& form : forms.events) {
        if (form.picture.empty()) {
            continue;
        }
        const Result<std::string> content = contentof(folder, form.picture);
        const bool map = form.picture.find('/' + std::string(mapfolder)) != std::string::npos || ismap(form.picture);
        if (!content && map && picturenamefault(form.picture).empty()) {
            notes.warning(form, "picture", missing(form.picture, content.reason) + "; perhaps it is not drawn yet");
        } else if (!content) {
            notes.error(form, "picture", missing(form.picture, content.reason));
        } else if (const Result<Measured> size = measured(*content.value); !size) {
            notes.error(form, "picture", form.picture + ' ' + size.reason);
        }
    }
}

void takepictures(const std::vector<EventForm>& events, const std::string& folder, const std::string& timelinefile,
                  Writing& writing, Findings& findings)
{
    std::set<std::string> taken;
    for (const EventForm& form : events) {
        if (form.picture.empty() || !taken.insert(form.picture).second) {
            continue;
        }
        Result<std::string> content = contentof(folder, form.picture);
        if (content) {
            writing.add(folderof(timelinefile), mapprefix(timelinefile) + '/' + form.picture,
                        std::move(*content.value));
        } else if (!ismap(form.picture)) {
            findings.push_back({Severity::error, inside(folder, form.picture), 0, "cannot be read: " + content.reason});
        }
    }
}

void takeback(Forms& forms, const std::string& timelinefile, const std::string& folder, Writing& writing,
              Findings& findings)
{
    Notes notes(forms.eventsource, findings);
    const std::string prefix = mapprefix(timelinefile) + '/';
    std::set<std::string> names;
    for (const EventForm& form : forms.events) {
        names.insert(form.picture);
    }
    std::set<std::string> taken;
    for (EventForm& form : forms.events) {
        const std::string name = form.picture;
        if (name.starts_with(prefix) && !names.contains(name.substr(prefix.size()))) {
            form.picture.erase(0, prefix.size());
        }
        if (name.empty() || !taken.insert(name).second) {
            continue;
        }
        Result<std::string> content = contentof(folderof(timelinefile), name);
        if (content) {
            writing.add(folder, form.picture, std::move(*content.value));
        } else if (!picturenamefault(name).empty()) {
            notes.error(form, "picture", missing(name, content.reason));
        }
    }
}

} // namespace brindor::authoring
