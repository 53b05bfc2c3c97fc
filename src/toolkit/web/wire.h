#pragma once

#include "toolkit/controls.h"
#include "toolkit/layout.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// How records go to the page: as the text of a JSON object.
namespace brindor::toolkit::web {

int pixels(double twips); // of the page; put to 30,000 at the most
PixelRect pixelsof(const Place& place);

std::string jsontext(std::string_view text); // any bytes, as UTF-8
std::string jsontext(const char* text);
std::string jsontext(int number);
std::string jsontext(bool flag);
std::string jsontext(Colour colour); // "rgb(1,2,3)"
std::string jsontext(const std::vector<std::string>& texts);
std::string jsontext(const std::vector<int>& numbers);

// The object of names, each with its value behind it.
template <class... Parts>
std::string object(const Parts&... namesandvalues)
{
    std::string result = "{";
    std::size_t at = 0;
    ((result += jsontext(namesandvalues), result += ++at % 2 == 1 ? ':' : at == sizeof...(Parts) ? '}' : ','), ...);
    return result;
}

// An object with the fields of both.
std::string joined(std::string object, std::string_view other);

// Where a control stands in Screen::controls; -1 for none.
int indexof(const Screen& screen, const Control* control);

// The lines of a list or drop-down list; none of other controls.
const std::vector<std::string>* linesof(const Control& control);

std::string screentext(int window, const Screen& screen);    // the screen's own fields
std::string controltext(int window, const Control& control); // all of it but the lines of its list

} // namespace brindor::toolkit::web
