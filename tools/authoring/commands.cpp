#include "authoring/commands.h"

#include "authoring/checks.h"
#include "authoring/conversion.h"
#include "authoring/folder.h"
#include "authoring/pictures.h"
#include "authoring/timelinetext.h"
#include "authoring/words.h"
#include "base/files.h"
#include "base/text.h"
#include "timeline/reader.h"

#include <array>
#include <cctype>
#include <optional>
#include <utility>
#include <vector>

namespace brindor::authoring {

namespace {

void fail(Findings& findings, const std::string& file, const std::string& what)
{
    findings.push_back({Severity::error, file, 0, what});
}

void checkforpictures(const Forms& forms, Findings& findings)
{
    for (const EventForm& form : forms.events) {
        if (form.picture.empty() && !hasplace(form)) {
            findings.push_back({Severity::error, forms.eventsource.file, form.line,
                                forms.eventsource.field("place") +
                                    ": the event has no picture; give place, latitude and longitude for a map, or a "
                                    "picture of your own"});
        }
    }
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

} // namespace

Findings maketimeline(const std::string& folder, const std::string& file)
{
    Findings findings;
    Forms forms = readfolder(folder, findings);
    checkrecords(forms, findings);
    sortforms(forms);
    const std::array<std::string, 2> places = {folder, folderof(file)};
    const std::vector<EventPicture> pictures = findpictures(forms, mapprefix(file), places, false, findings);
    sortfindings(findings);
    if (haserrors(findings)) {
        return findings;
    }
    Result<Done> done = puttimeline(forms, pictures);
    if (done) {
        done = copypictures(pictures, folder, folderof(file));
    }
    if (!done) {
        fail(findings, folder, done.reason);
        return findings;
    }
    const Result<Done> written = replacefile(file, timelinetext());
    if (!written) {
        fail(findings, file, "cannot be written: " + written.reason);
    }
    return findings;
}

Findings checkfolder(const std::string& folder)
{
    Findings findings;
    Forms forms = readfolder(folder, findings);
    const bool complete = !haserrors(findings);
    checkrecords(forms, findings);
    checkforpictures(forms, findings);
    sortforms(forms);
    const std::vector<EventPicture> pictures =
        findpictures(forms, mapprefix(folder), std::array{folder}, true, findings);
    const Result<Done> put = puttimeline(forms, pictures);
    if (!put) {
        fail(findings, folder, put.reason);
        return findings;
    }
    if (complete) { // records left out would make a type look as if it could not be filled
        checktimeline(forms, findings);
    }
    checktexts(forms, findings);
    checkdates(forms, findings);
    checkplaces(forms, findings);
    sortfindings(findings);
    return findings;
}

Findings checkfile(const std::string& file)
{
    Findings findings;
    const std::optional<Forms> forms = readfile(file, findings);
    if (forms) {
        checkrecords(*forms, findings);
        findpictures(*forms, mapprefix(file), std::array{folderof(file)}, true, findings);
        checktimeline(*forms, findings);
        checktexts(*forms, findings);
        checkdates(*forms, findings);
        sortfindings(findings);
    }
    return findings;
}

bool istimelinefile(const std::string& target)
{
    return folded(target).ends_with(".bd3");
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

Findings exporttimeline(const std::string& file, const std::string& folder, bool overwrite)
{
    Findings findings;
    const std::string peoplepath = inside(folder, peoplefile);
    const std::string eventspath = inside(folder, eventsfile);
    for (const std::string& path : {peoplepath, eventspath}) {
        if (!overwrite && isregularfile(path)) {
            fail(findings, path, "stands there already; name another folder, or replace it with --overwrite");
        }
    }
    const std::optional<Forms> forms = haserrors(findings) ? std::nullopt : readfile(file, findings);
    if (!forms) {
        return findings;
    }
    if (const Result<Done> made = makefolder(folder); !made) {
        fail(findings, folder, "cannot be made: " + made.reason);
        return findings;
    }
    std::vector<EventPicture> pictures;
    for (const EventForm& form : forms->events) {
        pictures.push_back({form.picture, 0, 0});
    }
    if (const Result<Done> copied = copypictures(pictures, folderof(file), folder); !copied) {
        fail(findings, file, copied.reason);
        return findings;
    }
    for (const auto& [path, text] :
         {std::pair(peoplepath, peopletext(*forms)), std::pair(eventspath, eventstext(*forms))}) {
        if (const Result<Done> written = replacefile(path, text); !written) {
            fail(findings, path, "cannot be written: " + written.reason);
            return findings;
        }
    }
    return findings;
}

} // namespace brindor::authoring
