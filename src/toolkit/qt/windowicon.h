#pragma once

#include <QIcon>

namespace brindor::toolkit::qt {

// The icon of the windows, a compass. That of the desktop is drawn by mapmaker.
QIcon compassicon();

} // namespace brindor::toolkit::qt
