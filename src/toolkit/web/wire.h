#pragma once

#include "toolkit/controls.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// How records go to the page: as the text of a JSON object.
namespace brindor::toolkit::web {

// Builds an object field by field.
class Json {
public:
    Json& add(std::string_view name, std::string_view text); // as UTF-8
    Json& add(std::string_view name, const char* text) { return add(name, std::string_view(text)); }
    Json& add(std::string_view name, int number);
    Json& add(std::string_view name, bool flag);
    Json& add(std::string_view name, Colour colour); // as "rgb(1,2,3)"
    Json& add(std::string_view name, const std::vector<std::string>& texts);
    Json& add(std::string_view name, const std::vector<int>& numbers);

    std::string text() const { return fields_ + '}'; }

private:
    void key(std::string_view name);

    std::string fields_ = "{";
};

int idof(const PictureRef& picture); // the page's name for it, 0 for none

// The screen's own fields.
std::string screentext(int window, const Screen& screen);

// All of a control but the lines of its list.
Json controltext(int window, int index, const Control& control);

// Where a control stands in Screen::controls; -1 for none.
int indexof(const Screen& screen, const Control* control);

// The lines of a list or drop-down list; none of other controls.
const std::vector<std::string>* linesof(const Control& control);

} // namespace brindor::toolkit::web
