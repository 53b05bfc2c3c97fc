#include "toolkit/operations.h"

#include "toolkit/stack.h"

#include <algorithm>
#include <utility>

namespace brindor::toolkit {

namespace {

// A change of a record reaches its window, where there is one.
void changed(Control& control)
{
    if (control.screen != nullptr && haswindow(*control.screen)) {
        host().update(control);
    }
}

void changed(Screen& screen)
{
    if (haswindow(screen)) {
        host().update(screen);
    }
}

template <class Record, class Field>
bool assign(Record& record, Field& field, Field value)
{
    if (field == value) {
        return false;
    }
    field = std::move(value);
    changed(record);
    return true;
}

} // namespace

void add(Screen& screen, Control& control, std::string name)
{
    control.screen = &screen;
    control.name = std::move(name);
    screen.controls.push_back(&control);
}

void add(Frame& container, Control& control, std::string name)
{
    control.container = &container;
    add(*container.screen, control, std::move(name));
}

std::string indexed(std::string_view name, std::int64_t index)
{
    return std::string(name) + '(' + std::to_string(index) + ')';
}

void settext(Control& control, std::string text)
{
    if (!assign(control, control.text, std::move(text)) || control.kind != Kind::textbox) {
        return;
    }
    raise(static_cast<TextBox&>(control).change);
}

void settooltip(Control& control, std::string tooltip)
{
    assign(control, control.tooltip, std::move(tooltip));
}

void select(OptionButton& option)
{
    if (option.selected) {
        return;
    }
    for (Control* other : option.screen->controls) {
        if (other->kind == Kind::optionbutton && other->container == option.container) {
            clearselection(static_cast<OptionButton&>(*other));
        }
    }
    assign(option, option.selected, true);
    raise(option.click);
}

void clearselection(OptionButton& option)
{
    assign(option, option.selected, false);
}

void additem(List& list, std::string line)
{
    list.lines.push_back(std::move(line));
    list.selected.push_back(false);
    changed(list);
}

void additem(Combo& combo, std::string line)
{
    combo.lines.push_back(std::move(line));
    changed(combo);
}

void clearlist(List& list)
{
    list.lines.clear();
    list.selected.clear();
    changed(list);
}

void clearlist(Combo& combo)
{
    combo.lines.clear();
    combo.text.clear();
    combo.position = -1;
    changed(combo);
}

void selectline(List& list, std::int16_t line, bool selected)
{
    if (line >= 0 && static_cast<std::size_t>(line) < list.selected.size()) {
        list.selected[static_cast<std::size_t>(line)] = selected;
        changed(list);
    }
}

void showline(Combo& combo, std::int16_t line)
{
    assign(combo, combo.position, line);
}

void place(Control& control, const Place& place)
{
    assign(control, control.place, place);
}

void moveleft(Control& control, double left)
{
    assign(control, control.place.left, left);
}

void movetop(Control& control, double top)
{
    assign(control, control.place.top, top);
}

void resizeto(Control& control, double width, double height)
{
    place(control, {control.place.left, control.place.top, width, height});
}

void show(Control& control)
{
    assign(control, control.visible, true);
}

void hide(Control& control)
{
    assign(control, control.visible, false);
}

void disable(Control& control)
{
    if (control.screen->focus == &control) {
        control.screen->focus = nullptr;
    }
    assign(control, control.enabled, false);
}

void setfontsize(Control& control, double points)
{
    assign(control, control.font.points, points);
}

void setpicture(Picture& control, PictureRef picture)
{
    assign(control, control.picture, std::move(picture));
}

void startdrag(Button& bar)
{
    Button* before = std::exchange(bar.screen->dragged, &bar);
    if (before != nullptr && before != &bar) {
        changed(*before);
    }
    changed(bar);
}

void enddrag(Button& bar)
{
    if (bar.screen->dragged == &bar) {
        bar.screen->dragged = nullptr;
        changed(bar);
    }
}

const Label* rowof(const Button& bar)
{
    for (const Control* control : bar.screen->controls) {
        if (control->kind == Kind::label && static_cast<const Label*>(control)->drop &&
            control->container == bar.container && control->place.top == bar.place.top) {
            return static_cast<const Label*>(control);
        }
    }
    return nullptr;
}

void setcaption(Screen& screen, std::string caption)
{
    assign(screen, screen.caption, std::move(caption));
}

void setbackdrop(Screen& screen, PictureRef picture)
{
    assign(screen, screen.backdrop, std::move(picture));
}

void setwindowstate(Screen& screen, std::int16_t state)
{
    if (assign(screen, screen.windowstate, state) && screen.shown) {
        raise(screen.resize);
    }
}

void resizeto(Screen& screen, double width, double height)
{
    const bool wider = std::exchange(screen.width, width) != width;
    const bool higher = std::exchange(screen.height, height) != height;
    if (wider || higher) {
        changed(screen);
        if (screen.shown) {
            raise(screen.resize);
        }
    }
}

void moveto(Screen& screen, double left, double top)
{
    screen.placed = true;
    screen.left = left;
    screen.top = top;
    changed(screen);
}

void movetomiddle(Screen& screen)
{
    const Size display = displaysize();
    moveto(screen, (display.width - screen.width) * 0.5, (display.height - screen.height) * 0.5);
}

void fitcontents(Screen& screen, double margin)
{
    double right = 0;
    double bottom = 0;
    for (const Control* control : screen.controls) {
        if (control->container == nullptr) {
            right = std::max(right, control->place.left + control->place.width);
            bottom = std::max(bottom, control->place.top + control->place.height);
        }
    }
    const Size frame = host().framesize();
    resizeto(screen, right + margin + frame.width, bottom + margin + frame.height);
}

Size displaysize()
{
    return host().displaysize();
}

Size framesize()
{
    return host().framesize();
}

LoadedPicture loadpicture(const std::string& file)
{
    return host().loadpicture(file);
}

void startviewer(const std::string& file)
{
    host().startviewer(file);
}

bool quitting()
{
    return host().quitting();
}

} // namespace brindor::toolkit
