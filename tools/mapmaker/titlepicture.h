#pragma once

#include "coastlines/coastlines.h"

#include <QImage>

namespace brindor::mapmaker {

// The main screen's background, 960 x 640 pixels: the world in two hemispheres as in an old atlas, with a panel for
// the title in the upper part and plain paper for the buttons along the bottom.
QImage titlepicture(const Coastlines& coastlines);

} // namespace brindor::mapmaker
