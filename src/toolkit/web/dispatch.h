#pragma once

#include "toolkit/controls.h"
#include "toolkit/web/page.h"

namespace brindor::toolkit::web {

// Tells toolkit/user.h what a person did to a control, or to the screen where `control` is none. False where it was
// refused or the page sent what no person can do.
bool act(const Event& event, Screen& screen, Control* control);

} // namespace brindor::toolkit::web
