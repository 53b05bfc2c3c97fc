#include "frame/services/settings.h"

#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "frame/services/failures.h"
#include "frame/services/placement.h"
#include "questions/question.h"
#include "timeline/timeline.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <string_view>

namespace brindor {

std::string mindif;
std::int16_t maxdif = 0;
std::int16_t nquestion = 0;
std::int16_t logstatus = 0;
std::string titlepicture;

namespace {

constexpr const char* settingsfile = "bdq.INI";
constexpr std::size_t largestfile = 65536;

using Rows = std::array<std::size_t, 5>;
constexpr Rows firstrows = {0, 1, 3, 2, 4}; // the order of the file
constexpr Rows lastrows = {5, 6, 7, 8, 9};

// A window of less could not be used, nor found again.
constexpr std::int16_t smallestside = 1500;
constexpr std::int16_t normalstate = toolkit::normal;
constexpr std::int16_t maximisedstate = toolkit::maximised;

void setdefaults()
{
    mindif = numbertext(lowestdifficulty);
    maxdif = lowestdifficulty;
    nquestion = usualquestions;
    logstatus = 1;
    titlepicture = "TITLE.BMP";
    placements = firstplacements;
    typeenabled.fill(0);
    std::fill(typeenabled.begin() + 1, typeenabled.begin() + 1 + lasttype, std::int16_t{-1});
    curperiod = 0;
    for (std::int16_t period = 0; period <= lastperiod; ++period) {
        if (isregularfile(periodfile(period))) {
            curperiod = period;
            return;
        }
    }
}

// Goes through the text of the file value by value.
struct ValueReader {
    std::string_view rest;

    std::string_view nextline()
    {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        std::string_view line = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        return line;
    }

    // The next `Count` values, on one line or over several; nothing for a value that is missing or no number. The
    // rest of the line of the last one is dropped.
    template <std::size_t Count>
    std::array<std::optional<std::int64_t>, Count> values()
    {
        std::array<std::optional<std::int64_t>, Count> found;
        std::size_t count = 0;
        while (count < Count && !rest.empty()) {
            std::string_view line = nextline();
            for (std::string_view value = takevalue(line); !value.empty() && count < Count; value = takevalue(line)) {
                found[count++] = wholenumber(value);
            }
        }
        return found;
    }
};

void take(std::int16_t& into, std::optional<std::int64_t> value, std::int16_t low = lowest16,
          std::int16_t high = highest16)
{
    if (value) {
        into = clampvalue(index16(*value), low, high);
    }
}

void readplacements(ValueReader& reader, const Rows& rows)
{
    const auto states = reader.values<5>();
    const auto colours = reader.values<5>();
    const auto heights = reader.values<5>();
    const auto widths = reader.values<5>();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        FormPlacement& row = placements[rows[i]];
        const bool ofscreen = rows[i] <= showscorrow;
        const std::int16_t smallest = ofscreen ? smallestside : lowest16;
        take(row.windowstate, states[i], ofscreen ? normalstate : lowest16, ofscreen ? maximisedstate : highest16);
        using Limits = std::numeric_limits<std::int32_t>;
        row.backcolor = static_cast<std::int32_t>(
            std::clamp<std::int64_t>(colours[i].value_or(row.backcolor), Limits::min(), Limits::max()));
        take(row.height, heights[i], smallest, highest16);
        take(row.width, widths[i], smallest, highest16);
    }
}

template <class Value>
std::string placementline(const Rows& rows, Value FormPlacement::*field)
{
    std::string line;
    for (const std::size_t row : rows) {
        line += (line.empty() ? "" : " ") + numbertext(placements[row].*field);
    }
    return line + "\r\n";
}

std::string placementlines(const Rows& rows)
{
    return placementline(rows, &FormPlacement::windowstate) + placementline(rows, &FormPlacement::backcolor) +
           placementline(rows, &FormPlacement::height) + placementline(rows, &FormPlacement::width);
}

} // namespace

void readsettings()
{
    setdefaults();
    const Result<std::string> content = readwhole(settingsfile, largestfile);
    if (!content) {
        return;
    }
    ValueReader reader{withoutmark(*content.value)};
    const auto game = reader.values<4>();
    std::int16_t lowest = lowestdifficulty;
    take(lowest, game[0], lowestdifficulty, highestdifficulty);
    mindif = numbertext(lowest);
    take(maxdif, game[1], lowestdifficulty, highestdifficulty);
    take(nquestion, game[2], 1, mostquestions);
    take(logstatus, game[3], 0, 2);
    const auto period = reader.values<4>(); // three reserved numbers behind it
    take(curperiod, period[0], 0, lastperiod);
    const std::string_view picture = reader.nextline();
    if (const std::string_view name = picture.substr(0, picture.find(',')); !name.empty()) {
        titlepicture = name;
    }
    readplacements(reader, firstrows);
    readplacements(reader, lastrows);
    for (std::int16_t type = 0; type <= lasttype; ++type) {
        take(typeenabled[static_cast<std::size_t>(type)], reader.values<1>()[0]);
    }
}

void writesettings()
{
    std::string text = mindif + ' ' + numbertext(maxdif) + ' ' + numbertext(nquestion) + ' ' + numbertext(logstatus) +
                       "\r\n" + numbertext(curperiod) + " 8 8 8\r\n" + titlepicture + "\r\n" +
                       placementlines(firstrows) + placementlines(lastrows);
    for (std::int16_t type = 0; type <= lasttype; ++type) {
        text += numbertext(typeenabled[static_cast<std::size_t>(type)]) + "\r\n";
    }
    if (const Result<Done> written = replacefile(settingsfile, text); !written) {
        tellfailureonce(settingsfile, written.reason);
    }
}

} // namespace brindor
