#pragma once

#include <QImage>
#include <array>
#include <string>

// The game's icon, a compass rose.
namespace brindor::mapmaker {

inline constexpr std::array<int, 8> iconsizes = {16, 22, 24, 32, 48, 64, 128, 256}; // pixels, as desktops want them

// The icon on a transparent ground. Small ones have fewer points and stronger lines.
QImage iconpicture(int size);

// The largest icon as an SVG file.
std::string iconsvg();

} // namespace brindor::mapmaker
