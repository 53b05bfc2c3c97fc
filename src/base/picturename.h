#pragma once

#include "base/result.h"

#include <cstddef>
#include <string>
#include <string_view>

// Which files a timeline or the settings may name as pictures. The game opens no other, the tools copy no other.
namespace brindor {

inline constexpr std::size_t largestpicturefile = std::size_t{64} << 20; // bytes

// What speaks against a picture's name, as a text for people; empty where nothing does. A good name is relative, has
// no part that is empty or begins with a dot, no backslash and no control character, and ends in png, jpg, jpeg, bmp
// or gif.
std::string picturenamefault(std::string_view name);

// The same for the parts of a name alone, whatever it ends in.
std::string relativenamefault(std::string_view name);

// The path of a picture that lies in a folder or below it; the current folder where `folder` is empty. Fails for a name
// with a fault, a file that is not there, and one that a link puts elsewhere; the links of a player's folder may lead
// into the installed game.
Result<std::string> picturefile(const std::string& folder, const std::string& name);

// Whether a path lies in a folder or below it. Both are without links, from the root.
bool liesin(const std::string& path, const std::string& folder);

// Whether the content begins as a PNG, JPEG, BMP or GIF file does.
bool ispicture(std::string_view content);

// Whether the name ends in a dot and `ending`, letter case aside: "a.PNG" ends in "png".
bool endsin(std::string_view name, std::string_view ending);

} // namespace brindor
