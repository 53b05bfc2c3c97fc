#include "timeline/reader.h"

#include "base/numbers.h"
#include "base/text.h"
#include "timeline/families.h"
#include "timeline/linereader.h"
#include "timeline/usedmarks.h"
#include "toolkit/operations.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace brindor {

namespace {

// The reading of one file. A step that fails turns all later steps into nothing, so the order of the file's lines can
// be read off the code.
struct Reading {
    LineReader reader;

    bool ok() const { return reader.failure().empty(); }

    void line(std::string& into, std::string_view expected)
    {
        if (const std::optional<std::string_view> text = ok() ? reader.line(expected) : std::nullopt) {
            into = *text;
        }
    }

    void headline(std::string_view expected)
    {
        if (ok()) {
            reader.line(expected);
        }
    }

    template <class... Numbers>
    void numbers(std::string_view expected, Numbers&... into)
    {
        std::array<std::int16_t, sizeof...(into)> read{};
        if (ok() && reader.numbers(read, expected)) {
            auto next = read.begin();
            ((into = *next++), ...);
        }
    }
};

std::string nocount(std::int64_t count, const std::string& expected)
{
    return numbertext(count) + " is no count from 0 to " + numbertext(mostrecords) + ". Correct " + expected +
           " and choose the period again.";
}

// One of the first two lines. A count out of range is a failure, so nothing is sized from an unchecked number.
std::int16_t readcount(Reading& reading, std::string_view expected)
{
    std::string text;
    reading.line(text, expected);
    const std::int64_t count = leadingnumber(text);
    if (reading.ok() && (count < 0 || count > mostrecords)) {
        reading.reader.refuse(nocount(count, std::string(expected)));
    }
    return reading.ok() ? index16(count) : std::int16_t{0};
}

void emptyown(PersonRec& person)
{
    person.faction = person.occupation = 0;
}

void emptyown(EventRec& event)
{
    event.group = event.nation1 = event.nation2 = 0;
}

void readown(Reading& reading, PersonRec& person)
{
    reading.numbers("a person's faction and occupation", person.faction, person.occupation);
}

void readown(Reading& reading, EventRec& event)
{
    reading.numbers("an event's group and two nations", event.group, event.nation1, event.nation2);
}

// As a new record is; the texts keep their memory for those that follow.
template <class Record>
void makeempty(Record& record)
{
    for (std::string* text : {&record.name, &record.desc1, &record.desc2, &record.desc3, &record.imagename}) {
        text->clear();
    }
    static_cast<Dates&>(record) = {};
    record.imagesize1 = record.imagesize2 = record.live = 0;
    emptyown(record);
}

template <class Record>
void readblock(Reading& reading, Record& record)
{
    reading.headline("the head line of the next record");
    reading.line(record.name, "a name");
    reading.numbers("the first date and its kind", record.date1, record.datetype1);
    reading.numbers("the second date and its kind", record.date2, record.datetype2);
    if (reading.ok()) {
        mindate = std::min(mindate, record.date1);
        maxdate = std::max(maxdate, record.date2);
    }
    reading.line(record.desc1, "the first description line");
    reading.line(record.desc2, "the second description line");
    reading.line(record.desc3, "the third description line");
    readown(reading, record);
    reading.line(record.imagename, "the picture's name");
    reading.numbers("the picture's two sizes", record.imagesize1, record.imagesize2);
    if (reading.ok()) {
        record.live = 1;
    }
}

// Each record is made or emptied when its turn comes, so that memory is gone through once. However far the reading
// gets, the array has all its slots: the rest are empty, and two lie behind the last record.
template <class Family>
void readfamily(Reading& reading, std::int16_t count, std::vector<std::int64_t>* lines)
{
    auto& records = Family::records();
    records.reserve(static_cast<std::size_t>(count) + 2);
    reading.headline("the head line of a section");
    std::size_t used = 0;
    for (; used < static_cast<std::size_t>(count) && reading.ok(); ++used) {
        if (lines != nullptr) {
            lines->push_back(reading.reader.linesread() + 2); // behind the record's head line
        }
        if (used == records.size()) {
            records.emplace_back();
        } else {
            makeempty(records[used]);
        }
        readblock(reading, records[used]);
    }
    records.resize(used);
    records.resize(static_cast<std::size_t>(count) + 2);
}

void readcatalogue(Reading& reading, Catalogue& catalogue, std::int16_t& counter, std::string_view name)
{
    const std::string whose = " of the " + std::string(name);
    reading.headline("the head line" + whose);
    std::int16_t count = 0;
    reading.numbers("the count" + whose, count);
    if (reading.ok() && count < 0) {
        reading.reader.refuse(nocount(count, "the count" + whose));
        count = 0;
        counter = 0;
        catalogue.resize(1);
    }
    if (!reading.ok()) {
        return;
    }
    counter = count;
    const std::size_t size = static_cast<std::size_t>(count) + 1;
    catalogue.resize(std::clamp(catalogue.size(), std::size_t{1}, size));
    catalogue.reserve(size);
    const std::string head = "the head line of an entry" + whose;
    const std::string entry = "the name of an entry" + whose;
    const std::string weight = "the weight of an entry" + whose;
    for (std::size_t i = 1; i < size && reading.ok(); ++i) {
        CatalogueEntry& into = i < catalogue.size() ? catalogue[i] : catalogue.emplace_back();
        reading.headline(head);
        reading.line(into.name, entry);
        reading.numbers(weight, into.catweight);
    }
    catalogue.resize(size);
}

template <class Family>
std::string lastname()
{
    const double last = Family::count() - 1;
    const auto& records = Family::records();
    return last >= 0 && last < static_cast<double>(records.size()) ? records[static_cast<std::size_t>(last)].name
                                                                   : std::string();
}

} // namespace

Result<Done> filltimeline(const std::string& filename, RecordLines* lines)
{
    Result<LineReader> opened = LineReader::open(filename);
    if (!opened) {
        return {std::nullopt, opened.reason};
    }
    Reading reading{std::move(*opened.value)};
    ++timelinestate;
    mindate = 9999;
    maxdate = -25000;
    const std::int16_t peoplelimit = readcount(reading, "the number of people");
    const std::int16_t eventlimit = readcount(reading, "the number of events");
    npeople = reading.ok() ? peoplelimit : 0;
    nevents = reading.ok() ? eventlimit : 0;
    readfamily<PersonFamily>(reading, peoplecount(), lines != nullptr ? &lines->people : nullptr);
    readfamily<EventFamily>(reading, eventcount(), lines != nullptr ? &lines->events : nullptr);
    readcatalogue(reading, factions, nfactions, "factions");
    readcatalogue(reading, occupations, noccupations, "occupations");
    readcatalogue(reading, groups, ngroups, "groups");
    readcatalogue(reading, nations, nnations, "nations");
    if (!reading.ok()) {
        return {std::nullopt, reading.reader.failure()};
    }
    curperson = 0;
    curevent = 0;
    return {Done{}, {}};
}

void readtimeline(const std::string& filename)
{
    const Result<Done> filled = filltimeline(filename);
    if (filled) {
        return;
    }
    std::string text = filled.reason;
    if (npeople >= 1 && nevents >= 1) {
        text += ' ' + numbertext(peoplecount()) + ' ' + lastname<PersonFamily>() + ' ' + numbertext(eventcount()) +
                ' ' + lastname<EventFamily>();
    }
    toolkit::messagebox(text);
}

void loadperiod()
{
    curfile = periodfile(curperiod);
    readtimeline(curfile);
    clearmarks();
}

} // namespace brindor
