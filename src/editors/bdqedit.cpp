#include "editors/bdqedit.h"

#include "editors/eentry.h"
#include "editors/pentry.h"
#include "frame/services/placement.h"
#include "timeline/reader.h"
#include "toolkit/dress.h"
#include "toolkit/operations.h"

#include <utility>

namespace brindor {

using namespace toolkit;

Bdqedit::Bdqedit(std::function<void()> showstatistics)
{
    const Look look{{224, 240, 192}, {184, 224, 128}, {Face::plain, 11, false}};
    constexpr double framewidth = 2640;
    constexpr double wide = 2160;

    name = "bdqedit";
    caption = " Choose ";
    back = look.surface;
    escapecloses = true;
    defaultbutton = &command1;

    put(look, *this, frame1, "Frame1", "Time Period",
        {grid::margin, grid::margin, framewidth, optionsheight(static_cast<std::int64_t>(option1.size()))});
    frame1.border = true;
    for (std::int16_t period = 0; period <= lastperiod; ++period) {
        OptionButton& option = option1[static_cast<std::size_t>(period)];
        put(look, frame1, option, indexed("Option1", period), "", optionplace(period, framewidth));
        option.click = [this, period] { choose(period); };
    }

    const double side = grid::margin + framewidth + grid::margin;
    const auto putbutton = [&](Button& button, const char* buttonname, const char* text, char accesskey, double above) {
        put(look, *this, button, buttonname, text, {side, above, wide, grid::buttonheight});
        button.accesskey = accesskey;
    };
    const double step = grid::buttonheight + grid::gap;
    putbutton(cmdpeople, "cmdPeople", "Show People", 'P', grid::margin);
    putbutton(cmdevents, "cmdEvents", "Show Events", 'E', grid::margin + step);
    putbutton(command2, "Command2", "Stats", 'S', grid::margin + 2 * step);
    const double bottom = grid::margin + frame1.place.height + grid::margin;
    put(look, *this, command1, "Command1", "OK",
        {side + wide - grid::buttonwidth, bottom, grid::buttonwidth, grid::buttonheight});
    command1.accesskey = 'O';

    load = [this] { open(); };
    cmdpeople.click = [] { showpeople(); };
    cmdevents.click = [] { showevents(); };
    command2.click = std::move(showstatistics);
    command1.click = [this] { closescreen(*this); };
}

void Bdqedit::open()
{
    fitcontents(*this, grid::margin);
    centerform(*this);
    for (std::size_t period = 0; period < option1.size(); ++period) {
        settext(option1[period], periodnames[period]);
    }
    if (curperiod >= 0 && curperiod <= lastperiod) {
        select(option1[static_cast<std::size_t>(curperiod)]);
    }
}

// A file that cannot be read is told, and leaves the period chosen.
void Bdqedit::choose(std::int16_t period)
{
    curperiod = period;
    loadperiod();
}

void showchooser(const std::function<void()>& showstatistics)
{
    Bdqedit screen(showstatistics);
    showmodal(screen);
}

} // namespace brindor
