#pragma once

#include "toolkit/host.h"

#include <QPixmap>
#include <QSize>

#include <cstdint>
#include <string>

namespace brindor::toolkit::qt {

// Why a picture could not be loaded: the number that the player sees.
enum PictureError : int {
    picturenotfound = 1, // or it cannot be read
    picturenotafile = 2, // a folder, a device or the like
    notapicture = 3,     // or one that is damaged
    picturetoolarge = 4,
    pictureoutside = 5, // its name is no relative one of a picture, or leads out of the folder of the program
};

inline constexpr std::int64_t mostpixels = 64'000'000;
inline constexpr int longestside = 4096; // pixels; a larger picture is kept at this size

LoadedPicture loadpicturefile(const std::string& file);

// A picture stretched to a size, kept until the size or the picture changes.
class StretchedPicture {
public:
    // A null pixmap where there is no picture or no area. `ratio` is of device pixels to logical ones.
    const QPixmap& at(const PictureRef& picture, QSize size, double ratio);

private:
    PictureRef picture_;
    QPixmap stretched_;
    QSize size_;
    double ratio_ = 0;
};

} // namespace brindor::toolkit::qt
