#include "frame/services/placement.h"

#include "base/numbers.h"
#include "toolkit/operations.h"

namespace brindor {

std::array<FormPlacement, 11> placements = firstplacements;

namespace {

bool restoring = false;

std::int32_t colournumber(const toolkit::Colour& colour)
{
    return colour.red + 256 * colour.green + 65536 * colour.blue;
}

} // namespace

void placeform(toolkit::Screen& screen, std::int16_t row, std::int16_t action)
{
    if (static_cast<std::size_t>(row) >= placements.size()) { // a negative one is among them
        return;
    }
    FormPlacement& placement = placements[static_cast<std::size_t>(row)];
    if (action == restoreplacement) {
        const FormPlacement wanted = placement;
        restoring = true;
        toolkit::setwindowstate(screen, wanted.windowstate);
        toolkit::resizeto(screen, wanted.width, wanted.height);
        restoring = false;
    } else if (!restoring) {
        placement = {screen.windowstate, colournumber(screen.back), roundtoint16(screen.height),
                     roundtoint16(screen.width)};
    }
}

void centerform(toolkit::Screen& screen)
{
    toolkit::movetomiddle(screen);
}

void centerframe(toolkit::Frame& frame, const toolkit::Screen& screen)
{
    toolkit::moveleft(frame, (screen.width - frame.place.width) / 2);
    toolkit::movetop(frame, (screen.height - frame.place.height) / 2);
}

void fitframe(toolkit::Screen& screen, std::int16_t row, toolkit::Frame& frame, FrameMargins margins,
              std::initializer_list<toolkit::Control*> contents)
{
    constexpr double left = 100;
    constexpr double narrower = 400;
    if (screen.windowstate != toolkit::maximised) {
        placeform(screen, row, storeplacement);
    }
    toolkit::resizeto(frame, screen.width - margins.width, screen.height - margins.height);
    for (toolkit::Control* control : contents) {
        toolkit::moveleft(*control, frame.place.left + left);
        toolkit::resizeto(*control, frame.place.width - narrower, control->place.height);
    }
    centerframe(frame, screen);
}

} // namespace brindor
