#pragma once

#include "toolkit/controls.h"

#include <cstdint>
#include <string>
#include <utility>

// How screens are put together and dressed, so that they look drawn by one hand.
namespace brindor::toolkit {

namespace grid { // twips
inline constexpr double margin = 240;
inline constexpr double gap = 120;
inline constexpr double row = 360;     // a line of text, a field, an option
inline constexpr double caption = 360; // above what stands in a bordered frame
inline constexpr double buttonheight = 480;
inline constexpr double buttonwidth = 1440;
} // namespace grid

struct Look {
    Colour surface; // of labels, frames, options and pictures
    Colour button;  // of buttons, bars and spins
    Font font;
    Colour field{255, 255, 255}; // of text boxes, lists and drop-down lists
    Colour letters{0, 0, 0};
};

// A control joins a screen or a frame, dressed by its kind. Tab goes through the controls in the order of these calls.
void put(const Look& look, Screen& screen, Control& control, std::string name, std::string text, const Place& place);
void put(const Look& look, Frame& frame, Control& control, std::string name, std::string text, const Place& place);

// A label and, right of it, the field that it names.
struct Caption {
    Label& label;
    const char* name;
    const char* text; // also the accessible name of the field
    double width;
};
// `place` is that of both together.
template <class Holder>
void putcaptioned(const Look& look, Holder& holder, const Caption& caption, Control& field, std::string name,
                  std::string text, const Place& place)
{
    put(look, holder, caption.label, caption.name, caption.text, {place.left, place.top, caption.width, grid::row});
    put(look, holder, field, std::move(name), std::move(text),
        {place.left + caption.width, place.top, place.width - caption.width, place.height});
    field.says = caption.text;
    caption.label.names = &field;
}

// Options stand one below the other in a bordered frame: the place of option `at`, counted from 0, in a frame of a
// width, and the height of a frame of `count` options.
constexpr Place optionplace(std::int64_t at, double framewidth)
{
    return {grid::gap, grid::caption + static_cast<double>(at) * grid::row, framewidth - 2 * grid::gap, grid::row};
}
constexpr double optionsheight(std::int64_t count)
{
    return grid::caption + static_cast<double>(count) * grid::row + grid::gap;
}

} // namespace brindor::toolkit
