#pragma once

#include "toolkit/controls.h"

#include <QAccessible>

namespace brindor::toolkit::qt {

class ScreenWindow;

// A widget that an assistive tool can press though Qt would not know how, and what such a tool calls it.
class Pressable {
public:
    virtual void pressfor() = 0;
    virtual QAccessible::Role accessrole() const = 0; // NoRole for one that does nothing and is left to Qt

protected:
    ~Pressable() = default;
};

// From now on assistive tools are told what Qt does not tell by itself: that windows are windows and dialogs, drop-down
// lists their own names, and what a press does.
void installaccess();

// Tells of every bar whether it is picked up and on which row it lies, and of every row which bar it holds.
void telldrops(ScreenWindow& window, const Screen& screen);

} // namespace brindor::toolkit::qt
