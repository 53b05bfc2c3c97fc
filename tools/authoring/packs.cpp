#include "authoring/packs.h"

#include "authoring/commandline.h"
#include "authoring/eventpictures.h"
#include "authoring/folder.h"
#include "authoring/words.h"
#include "authoring/writing.h"
#include "authoring/zipfile.h"
#include "base/files.h"
#include "base/folders.h"
#include "base/picturename.h"
#include "base/text.h"
#include "timeline/reader.h"
#include "timeline/timeline.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

namespace brindor::authoring {

namespace {

constexpr std::size_t largestzip = std::size_t{512} << 20; // bytes, packed and unpacked

Report refused(const std::string& file, const std::string& what)
{
    return {{{Severity::error, file, 0, what}}, {}};
}

// Makes the timeline with its maps in a folder that is still empty.
Report makewhole(const std::string& folder, const std::string& file, const Places& places)
{
    Report report = maketimeline(folder, file, false);
    if (haserrors(report.findings)) {
        return report;
    }
    const std::string mapmaker = inside(places.tools, "mapmaker");
    if (!isregularfile(mapmaker)) {
        report.said += ". The maps are left out: " + mapmaker + " is not there; it is built where Qt is installed";
        return report;
    }
    const Result<int> drawn = runprogram({mapmaker, "maps", folder, folderof(file), file});
    report = maketimeline(folder, file, false); // writes nothing new, and tells which maps there are now
    if (!drawn || *drawn.value != 0) {
        report.said += ". " + mapmaker + " has failed" + (drawn ? std::string() : ": " + drawn.reason);
    }
    return report;
}

Result<Done> copygame(const std::string& game, const std::string& into)
{
    for (const char* name : {"brindor", "brindor-viewer", "TITLE.BMP", "bdqord.txt", "qt.conf"}) {
        const std::string from = inside(game, name);
        if (isregularfile(from)) {
            if (Result<Done> copied = copyfile(from, inside(into, name)); !copied) {
                return {std::nullopt, from + " cannot be copied: " + copied.reason};
            }
        }
    }
    for (const char* name : {"lib", "plugins"}) { // of a packed game, which has its libraries with it
        if (const std::string from = inside(game, name); isfolder(from)) {
            if (Result<Done> linked = linkfolder(from, inside(into, name)); !linked) {
                return {std::nullopt, from + " cannot be linked: " + linked.reason};
            }
        }
    }
    return {Done{}, {}};
}

// What is wrong with the files of a pack; empty where nothing is. `timeline` becomes the timeline's name.
std::string packfault(const ZipContent& files, std::string& timeline)
{
    for (const auto& [name, content] : files) {
        if (istimelinefile(name)) {
            if (!timeline.empty() || name.find('/') != std::string::npos) {
                return "it must hold one timeline (.bd3), not in a folder";
            }
            timeline = name;
        }
    }
    if (timeline.empty()) {
        return "it holds no timeline (.bd3); such files are made by timelinemaker pack";
    }
    for (const auto& [name, content] : files) {
        if (name == timeline || name.ends_with('/')) {
            continue;
        }
        if (const std::string fault = picturenamefault(name); !fault.empty()) {
            return '"' + name + "\" in it is no picture's name; " + fault;
        }
        if (!name.starts_with(mapprefix(timeline) + '/')) {
            return '"' + name + "\" in it does not lie in the timeline's folder, " + mapprefix(timeline) + '/';
        }
    }
    return {};
}

// Reads the text as the game does, into the Timeline.
Result<Done> readtext(const std::string& text)
{
    const Result<TemporaryFolder> scratch = TemporaryFolder::make();
    if (!scratch) {
        return {std::nullopt, scratch.reason};
    }
    const std::string file = inside(scratch.value->path(), "pack.bd3");
    if (const Result<Done> written = replacefile(file, text); !written) {
        return written;
    }
    return filltimeline(file);
}

std::string periodof(const std::string& period, const std::string& timeline)
{
    const std::string named = periodnamed(period.empty() ? titleof(timeline) : period);
    return named.empty() ? periodnames[lastperiod] : named;
}

} // namespace

Places placesbeside(const std::string& toolfolder)
{
    const bool packed = isregularfile(inside(toolfolder, "brindor"));
    return {toolfolder, packed ? toolfolder : inside(folderof(toolfolder), "game")};
}

std::string periodnamed(const std::string& word)
{
    const auto found = std::find_if(periodnames.begin(), periodnames.end(), [&word](const std::string& name) {
        return !name.empty() && folded(name) == folded(word);
    });
    return found == periodnames.end() ? std::string() : *found;
}

std::string periodlist(const std::string& word)
{
    std::string list = periodnames.front();
    for (std::size_t period = 1; period <= lastperiod; ++period) {
        list += (period < lastperiod ? ", " : ' ' + word + ' ') + periodnames[period];
    }
    return list;
}

Report playtimeline(const std::string& folder, const std::string& period, const Places& places,
                    const std::function<void(const Report&)>& ready)
{
    const std::string game = inside(places.game, "brindor");
    if (!isregularfile(game)) {
        return refused(game,
                       "is not there, so the timeline cannot be played; build the game with scripts/play, or name "
                       "its folder with --game");
    }
    const Result<TemporaryFolder> scratch = TemporaryFolder::make();
    if (!scratch) {
        return refused(folder, "no folder for the game could be made: " + scratch.reason);
    }
    const std::string& own = scratch.value->path();
    const std::string file = periodof(period, "") + ".bd3";
    Report report = makewhole(folder, inside(own, file), places);
    if (haserrors(report.findings)) {
        return report;
    }
    ready(report);
    const Result<Done> copied = copygame(places.game, own);
    const Result<int> played = copied ? runprogram({inside(own, "brindor")}) : Result<int>{std::nullopt, copied.reason};
    if (!played || *played.value != 0) {
        return refused(game, played ? "ended with a failure, " + numbertext(*played.value)
                                    : "cannot be started: " + played.reason);
    }
    return {};
}

Report packtimeline(const std::string& folder, const std::string& zipfile, bool overwrite, const Places& places)
{
    if (!endsin(zipfile, "zip")) {
        return refused(zipfile, "is no name for a pack; it must end in .zip");
    }
    const Result<TemporaryFolder> scratch = TemporaryFolder::make();
    if (!scratch) {
        return refused(folder, "no folder to pack in could be made: " + scratch.reason);
    }
    Report report = makewhole(folder, inside(scratch.value->path(), titleof(folder) + ".bd3"), places);
    const std::string left = report.said.substr(std::min(report.said.find(". "), report.said.size()));
    ZipContent files;
    for (const std::string& name : filesbelow(scratch.value->path())) {
        Result<std::string> content = readwhole(inside(scratch.value->path(), name), largestzip);
        if (!content) {
            report.findings.push_back({Severity::error, name, 0, "cannot be read: " + content.reason});
            return report;
        }
        files.emplace(name, std::move(*content.value));
    }
    if (haserrors(report.findings)) {
        return report;
    }
    Result<std::string> packed = zipped(files);
    if (!packed) {
        return refused(zipfile, "cannot be packed: " + packed.reason);
    }
    Writing writing(overwrite, report.findings);
    writing.add(zipfile, std::move(*packed.value));
    if (!writing.commit()) {
        report.said.clear();
        return report;
    }
    report.said = zipfile + ": " + counttext(people.size() - 2, "person", "people") + ", " +
                  counttext(events.size() - 2, "event", "events") + ", " +
                  counttext(files.size() - 1, "picture", "pictures") + "; to be added to a game by timelinemaker add " +
                  inshell(zipfile) + left;
    return report;
}

Report addpack(const std::string& zipfile, const std::string& period, bool overwrite, const Places& places)
{
    if (!isfolder(places.game)) {
        return refused(places.game, "is not there; name the folder of the game with --game");
    }
    const Result<std::string> packed = readwhole(zipfile, largestzip);
    if (!packed) {
        return refused(zipfile, "cannot be read: " + packed.reason);
    }
    Result<ZipContent> files = unzipped(*packed.value, largestzip);
    if (!files) {
        return refused(zipfile, "cannot be unpacked: " + files.reason);
    }
    std::string timeline;
    if (const std::string fault = packfault(*files.value, timeline); !fault.empty()) {
        return refused(zipfile, "is not added: " + fault);
    }
    std::string& text = files.value->at(timeline);
    if (const Result<Done> read = readtext(text); !read) {
        return refused(zipfile, "is not added, since the game cannot read its timeline: " + read.reason);
    }
    Report report;
    Writing writing(overwrite, report.findings);
    const std::string file = periodof(period, timeline) + ".bd3";
    for (std::int16_t i = 0; i < eventcount(); ++i) {
        const std::string& name = eventrec(i).imagename;
        if (const std::string fault = name.empty() ? "" : picturenamefault(name); !fault.empty()) {
            return refused(zipfile, "is not added: the event " + eventrec(i).name + " names a picture \"" + name +
                                        "\"; " + fault);
        }
        if (const auto picture = files.value->find(name); picture != files.value->end()) {
            writing.add(places.game, name, picture->second);
        }
    }
    writing.add(places.game, file, text);
    if (writing.commit()) {
        report.said = zipfile + " is now the timeline " + file + " in " + places.game + ": " +
                      counttext(static_cast<std::size_t>(peoplecount()), "person", "people") + ", " +
                      counttext(static_cast<std::size_t>(eventcount()), "event", "events") +
                      ". In the game choose it by Setup, View/Select.";
    }
    return report;
}

} // namespace brindor::authoring
