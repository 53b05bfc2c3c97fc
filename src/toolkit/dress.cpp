#include "toolkit/dress.h"

#include "toolkit/operations.h"

#include <utility>

namespace brindor::toolkit {

namespace {

Colour colourof(const Look& look, Kind kind)
{
    switch (kind) {
    case Kind::textbox:
    case Kind::list:
    case Kind::combo:
        return look.field;
    case Kind::button:
    case Kind::spin:
        return look.button;
    default:
        return look.surface;
    }
}

void dress(const Look& look, Control& control, std::string text, const Place& place)
{
    control.text = std::move(text);
    control.place = place;
    control.back = colourof(look, control.kind);
    control.fore = look.letters;
    control.font = look.font;
}

} // namespace

void put(const Look& look, Screen& screen, Control& control, std::string name, std::string text, const Place& place)
{
    add(screen, control, std::move(name));
    dress(look, control, std::move(text), place);
}

void put(const Look& look, Frame& frame, Control& control, std::string name, std::string text, const Place& place)
{
    add(frame, control, std::move(name));
    dress(look, control, std::move(text), place);
}

} // namespace brindor::toolkit
