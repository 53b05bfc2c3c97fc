#include "generated.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "timeline/reader.h"
#include "timeline/timeline.h"
#include "timeline/usedmarks.h"
#include "timeline/writer.h"

#include <cstdlib>
#include <vector>

namespace brindor::bench {

namespace {

template <class Record>
Record item(std::int16_t number, Texts texts)
{
    const std::string text = numbertext(number);
    Record record;
    record.name = "A name of the usual length " + text;
    record.desc1 = "Said something that a player can tell from others, " + text + '.';
    record.desc2 = "Did another thing, which is known of nobody else, " + text + '.';
    if (texts == Texts::brief) {
        record.name = "Na " + text;
        record.desc1 = "Sa " + text;
        record.desc2 = "Di " + text;
    } else if (texts == Texts::lengthy) {
        for (std::string* longer : {&record.desc1, &record.desc2, &record.desc3}) {
            for (int sentence = 0; sentence < 4; ++sentence) {
                *longer += " And then much else is told of it at length.";
            }
        }
    }
    record.date1 = index16(number - 10000);
    record.date2 = index16(number - 9950);
    record.datetype1 = approx;
    record.imagename = texts == Texts::brief ? text + ".png" : "maps/period/" + text + ".png";
    record.imagesize1 = 560;
    record.imagesize2 = 420;
    record.live = 1;
    return record;
}

Catalogue entries(const std::string& word, std::int16_t count)
{
    Catalogue catalogue(1);
    for (std::int16_t i = 0; i < count; ++i) {
        catalogue.push_back({word + ' ' + numbertext(i), i});
    }
    return catalogue;
}

} // namespace

std::string writetimeline(std::int16_t records, std::int16_t different, std::int16_t outliers, Texts texts)
{
    forgettimeline();
    for (std::int16_t i = 0; i < records; ++i) {
        const std::int16_t number = i < records - outliers ? index16(i % different) : i;
        const std::int16_t entry = index16(number + 1);
        people.push_back(item<PersonRec>(number, texts));
        people.back().faction = people.back().occupation = entry;
        events.push_back(item<EventRec>(number, texts));
        events.back().group = events.back().nation1 = events.back().nation2 = entry;
    }
    npeople = nevents = records;
    const bool brief = texts == Texts::brief;
    factions = entries(brief ? "Fa" : "A faction with a name", records);
    occupations = entries(brief ? "Oc" : "An occupation", records);
    groups = entries(brief ? "Gr" : "A group of events", records);
    nations = entries(brief ? "Na" : "A nation", records);
    std::string text = timelinetext();
    forgettimeline();
    if (!replacefile(generatedfile, text)) {
        std::abort();
    }
    return text;
}

void loadtimeline(std::int16_t records, std::int16_t different, std::int16_t outliers)
{
    writetimeline(records, different, outliers);
    if (!filltimeline(generatedfile)) {
        std::abort();
    }
    clearmarks();
}

void forgettimeline()
{
    npeople = nevents = 0;
    std::vector<PersonRec>().swap(people);
    std::vector<EventRec>().swap(events);
    for (Catalogue* catalogue : {&factions, &occupations, &groups, &nations}) {
        Catalogue().swap(*catalogue);
    }
}

} // namespace brindor::bench
