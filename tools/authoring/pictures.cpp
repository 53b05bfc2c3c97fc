#include "authoring/pictures.h"

#include "authoring/folder.h"
#include "authoring/words.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <set>
#include <stb_image.h>
#include <string_view>

namespace brindor::authoring {

namespace {

constexpr std::string_view mapfolder = "maps/";
constexpr std::size_t largestpicture = 64U << 20U; // bytes

// A picture lies in the folder or below it, so that it can be copied with the timeline.
bool staysinside(const std::string& name)
{
    const std::string framed = '/' + name + '/';
    return name.find('\\') == std::string::npos && framed.find("//") == std::string::npos &&
           framed.find("/../") == std::string::npos;
}

std::string foundin(const std::string& name, std::span<const std::string> folders)
{
    const auto folder = std::find_if(folders.begin(), folders.end(), [&name](const std::string& candidate) {
        return isregularfile(inside(candidate, name));
    });
    return folder == folders.end() ? std::string() : inside(*folder, name);
}

Result<EventPicture> measured(const std::string& name, const std::string& file)
{
    const Result<std::string> content = readwhole(file, largestpicture);
    if (!content) {
        return {std::nullopt, file + " cannot be read: " + content.reason};
    }
    int width = 0;
    int height = 0;
    int channels = 0;
    const auto* bytes = reinterpret_cast<const stbi_uc*>(content.value->data());
    const bool known =
        content.value->size() <= static_cast<std::size_t>(std::numeric_limits<int>::max()) &&
        stbi_info_from_memory(bytes, static_cast<int>(content.value->size()), &width, &height, &channels) != 0;
    const std::optional<std::int16_t> fittingwidth = toint16(width);
    const std::optional<std::int16_t> fittingheight = toint16(height);
    if (!known || !fittingwidth || !fittingheight) {
        return {std::nullopt, file + " is no picture in a known form; use png, jpg, bmp or gif"};
    }
    return {EventPicture{name, *fittingwidth, *fittingheight}, {}};
}

Result<EventPicture> findpicture(const std::string& name, std::span<const std::string> folders, bool needed)
{
    if (!staysinside(name)) {
        return {std::nullopt, '"' + name + "\" must name a file in the folder or below it, with / between the parts"};
    }
    const std::string file = needed || !ismap(name) ? foundin(name, folders) : std::string();
    if (file.empty() && (needed || !ismap(name))) {
        return {std::nullopt, name + " is missing"};
    }
    return ismap(name) ? Result<EventPicture>{EventPicture{name, mapwidth, mapheight}, {}} : measured(name, file);
}

} // namespace

bool ismap(const std::string& picture)
{
    return picture.starts_with(mapfolder);
}

bool hasplace(const EventForm& form)
{
    return form.latitude && form.longitude;
}

std::string mapprefix(const std::string& timelinefile)
{
    const std::string name = timelinefile.substr(timelinefile.find_last_of('/') + 1);
    return slug(name.substr(0, name.find_last_of('.')));
}

std::vector<std::string> picturenames(const std::vector<EventForm>& events, const std::string& prefix)
{
    std::set<std::string> taken;
    for (const EventForm& form : events) {
        taken.insert(form.picture);
    }
    std::vector<std::string> names;
    for (const EventForm& form : events) {
        std::string name = form.picture;
        if (name.empty() && hasplace(form)) {
            const std::string stem = std::string(mapfolder) + prefix + '-' + slug(form.name);
            name = stem + ".png";
            for (std::int64_t number = 2; !taken.insert(name).second; ++number) {
                name = stem + '-' + numbertext(number) + ".png";
            }
        }
        names.push_back(name);
    }
    return names;
}

std::vector<EventPicture> findpictures(const Forms& forms, const std::string& prefix,
                                       std::span<const std::string> folders, bool mapsneeded, Findings& findings)
{
    std::vector<EventPicture> pictures;
    const std::vector<std::string> names = picturenames(forms.events, prefix);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const EventForm& form = forms.events[i];
        Result<EventPicture> picture{EventPicture{}, {}};
        if (!names[i].empty()) {
            picture = findpicture(names[i], folders, mapsneeded && !hasplace(form));
        }
        if (!picture) {
            findings.push_back({Severity::error, forms.eventsource.file, form.line,
                                forms.eventsource.field("picture") + ": " + picture.reason});
        }
        pictures.push_back(picture.value.value_or(EventPicture{}));
    }
    return pictures;
}

Result<Done> copypictures(const std::vector<EventPicture>& pictures, const std::string& from, const std::string& into)
{
    for (const EventPicture& picture : pictures) {
        const std::string source = inside(from, picture.name);
        const std::string target = inside(into, picture.name);
        if (picture.name.empty() || !staysinside(picture.name) || !isregularfile(source)) {
            continue;
        }
        const Result<std::string> content = readwhole(source, largestpicture);
        if (!content) {
            return {std::nullopt, source + " cannot be read: " + content.reason};
        }
        if (isregularfile(target) && readwhole(target, largestpicture).value == content.value) {
            continue;
        }
        Result<Done> written = makefolder(folderof(target));
        if (written) {
            written = replacefile(target, *content.value);
        }
        if (!written) {
            return {std::nullopt, target + " cannot be written: " + written.reason};
        }
    }
    return {Done{}, {}};
}

std::string folderof(const std::string& path)
{
    const std::size_t slash = path.find_last_of('/');
    return slash == std::string::npos ? std::string() : path.substr(0, std::max<std::size_t>(slash, 1));
}

} // namespace brindor::authoring
