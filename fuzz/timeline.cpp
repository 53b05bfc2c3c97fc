// The timeline reader, then all texts and draws: any bytes leave a Timeline whose arrays fit its counters; a file that
// is read whole reads the same when written anew; and every question that can be filled holds five items with
// different texts.

#include "timeline/timeline.h"
#include "base/text.h"
#include "ground.h"
#include "questions/question.h"
#include "questions/selection.h"
#include "questions/texts.h"
#include "questions/types.h"
#include "timeline/reader.h"
#include "timeline/usedmarks.h"
#include "timeline/writer.h"

#include <algorithm>
#include <set>
#include <string>

using namespace brindor;
using namespace brindor::fuzz;

namespace {

constexpr std::int64_t mostread = 200;  // records of a family; thousands cost more time than they find
constexpr std::int64_t mostplayed = 40; // larger Timelines are read but not played

// What lines 1 and 2 promise.
bool islarge(std::string_view text)
{
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view second = text.substr(std::min(end + 1, text.size()));
    return leadingnumber(text.substr(0, end)) > mostread ||
           leadingnumber(second.substr(0, second.find('\n'))) > mostread;
}

void read(const char* file, std::string_view content)
{
    writeinput(file, content);
    const bool whole = filltimeline(file).value.has_value();
    require(people.size() == static_cast<std::size_t>(npeople) + 2);
    require(events.size() == static_cast<std::size_t>(nevents) + 2);
    if (whole) {
        const std::string written = timelinetext();
        writeinput(file, written);
        require(filltimeline(file).value.has_value() && timelinetext() == written);
    }
    clearmarks();
}

void play(std::int16_t type)
{
    qtype = type;
    if (!fillabletypes()[static_cast<std::size_t>(type)]) {
        return;
    }
    std::set<std::string> texts;
    for (std::int16_t slot = 0; slot < itemsasked; ++slot) {
        const std::int16_t item = getitem(slot);
        require(texts.insert(getpstr(item, type)).second);
        for (std::int16_t kind = sortprompt; kind <= questionline; ++kind) {
            paramname(kind, item, item);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = textof(data, size);
    if (islarge(text)) {
        return 0;
    }
    preparedground();
    read("Ancient.bd3", text);
    if (npeople <= mostplayed && nevents <= mostplayed) {
        for (std::int16_t type = 1; type <= lasttype; ++type) {
            play(type);
        }
        require(std::all_of(usedmarks.begin(), usedmarks.end(), [](std::int16_t mark) { return mark >= 0; }));
    }
    return 0;
}
