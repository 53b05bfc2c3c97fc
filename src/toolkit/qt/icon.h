#pragma once

#include <QIcon>

namespace brindor::toolkit::qt {

// The game's icon: a compass.
QIcon compassicon();

} // namespace brindor::toolkit::qt
