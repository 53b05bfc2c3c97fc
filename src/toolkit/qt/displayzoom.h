#pragma once

#include "toolkit/qt/zoom.h"

#include <QSize>

#include <map>
#include <optional>
#include <string>
#include <utility>

namespace brindor::toolkit::qt {

// The zoom that suits a display with a work area of this size, in pixels: a question takes about three quarters of
// it, and every screen fits whole. At most 2.
Zoom startzoom(QSize workarea);

// One step of about a tenth up or down, within what can be read and used.
Zoom nextzoom(Zoom zoom, int direction);

// The zooms that a person has chosen, one for each size of display, in a text file of lines such as "1920 1080 135":
// width, height, percent. A line that says something else is passed over.
class ChosenZooms {
public:
    // Without a name nothing is read or written.
    explicit ChosenZooms(std::string file);

    std::optional<Zoom> of(QSize display) const;

    // Remembers a choice, or with none that there is none any more. Where the file cannot be written it lasts for
    // this run.
    void choose(QSize display, std::optional<Zoom> zoom);

private:
    std::string file_;
    std::map<std::pair<int, int>, int> percents_; // by width and height
};

} // namespace brindor::toolkit::qt
