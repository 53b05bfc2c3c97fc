#pragma once

#include "toolkit/controls.h"

#include <array>
#include <cstdint>
#include <initializer_list>

// The remembered sizes of the quiz screens. Position is never remembered: a screen opens centred. All lengths are
// twips.
namespace brindor {

struct FormPlacement {
    std::int16_t windowstate = 0; // 0 normal, 1 minimised, 2 maximised
    std::int32_t backcolor = 0;   // red + 256 x green + 65536 x blue; kept, never applied
    std::int16_t height = 9000;   // outer size
    std::int16_t width = 12000;
};

enum PlacementRow : std::int16_t { mchoicerow = 0, qsortrow = 1, qmatchrow = 2, showscorrow = 3 };

// As the screens are made. The score screen leaves the answered question in view behind it.
inline constexpr std::array<FormPlacement, 11> firstplacements = {{{}, {}, {}, {.height = 5400, .width = 8400}}};

// Rows 0 to 3 belong to the screens above. Rows 4 to 9 go through the settings file unchanged; row 10 is in no file.
// Written by the settings and by placeform.
extern std::array<FormPlacement, 11> placements;

enum PlacementAction : std::int16_t { storeplacement = 0, restoreplacement = 1 };

// Restores the screen's state and size from a row (action 1) or stores them there (any other action), rounded to
// whole numbers and limited to 16 bits. Nothing is stored while a restore is going on. A row outside 0 to 10 does
// nothing.
void placeform(toolkit::Screen& screen, std::int16_t row, std::int16_t action);

// Moves the screen to the middle of the display. One that is larger gets a negative left or top.
void centerform(toolkit::Screen& screen);

// Moves a frame to the middle of the screen's outer size.
void centerframe(toolkit::Frame& frame, const toolkit::Screen& screen);

// The resize rule of the screens whose contents follow the window. Stores the size unless maximised, makes the
// frame smaller than the window by the two margins, fits the contents to the frame's width, and centres the frame.
struct FrameMargins {
    double width = 0;
    double height = 0;
};
void fitframe(toolkit::Screen& screen, std::int16_t row, toolkit::Frame& frame, FrameMargins margins,
              std::initializer_list<toolkit::Control*> contents);

} // namespace brindor
