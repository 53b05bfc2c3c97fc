#include "toolkit/qt/displayzoom.h"

#include "base/files.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace brindor::toolkit::qt {

namespace {

constexpr std::size_t largestfile = 64 * 1024; // bytes
constexpr int leastpercent = 50;
constexpr int mostpercent = 400;
constexpr double step = 1.1;

int percentof(Zoom zoom)
{
    return static_cast<int>(std::lround(zoom.factor() * 100));
}

Zoom ofpercent(int percent)
{
    return Zoom(std::clamp(percent, leastpercent, mostpercent) / 100.0);
}

} // namespace

Zoom startzoom(QSize workarea)
{
    constexpr double share = 0.75;
    constexpr QSizeF question(800, 600); // 12000 x 9000 twips
    constexpr QSizeF largest(936, 645);  // the inside of the largest screen, that of the events
    constexpr QSizeF frame(10, 32);      // what a frame and title bar take at most
    constexpr double most = 2;
    const auto fit = [](QSizeF room, QSizeF size) {
        return std::min(room.width() / size.width(), room.height() / size.height());
    };
    return Zoom(
        std::min(most, std::max(share * fit(workarea, question), std::min(1.0, fit(workarea - frame, largest)))));
}

Zoom nextzoom(Zoom zoom, int direction)
{
    return ofpercent(static_cast<int>(std::lround(percentof(zoom) * (direction > 0 ? step : 1 / step))));
}

ChosenZooms::ChosenZooms(std::string file) : file_(std::move(file))
{
    const Result<std::string> content = file_.empty() ? Result<std::string>{} : readwhole(file_, largestfile);
    std::istringstream lines(content ? *content.value : "");
    for (std::string line; std::getline(lines, line);) {
        std::istringstream numbers(line);
        int width = 0;
        int height = 0;
        int percent = 0;
        if (numbers >> width >> height >> percent) {
            percents_[{width, height}] = percent;
        }
    }
}

std::optional<Zoom> ChosenZooms::of(QSize display) const
{
    const auto found = percents_.find({display.width(), display.height()});
    return found == percents_.end() ? std::nullopt : std::optional(ofpercent(found->second));
}

void ChosenZooms::choose(QSize display, std::optional<Zoom> zoom)
{
    if (zoom) {
        percents_[{display.width(), display.height()}] = percentof(*zoom);
    } else {
        percents_.erase({display.width(), display.height()});
    }
    std::ostringstream lines;
    for (const auto& [size, percent] : percents_) {
        lines << size.first << ' ' << size.second << ' ' << percent << '\n';
    }
    if (!file_.empty()) {
        replacefile(file_, lines.str());
    }
}

} // namespace brindor::toolkit::qt
