#include "editors/imgdisp.h"

#include "base/text.h"
#include "toolkit/dress.h"
#include "toolkit/operations.h"

namespace brindor {

using namespace toolkit;

std::string viewimagename;

namespace {

// What the window adds to its picture, and the smallest window that still shows one.
constexpr double besides = 60;
constexpr double above = 100;

} // namespace

ImgDisp::ImgDisp()
{
    const Look look{{224, 224, 224}, {}, {}};

    name = "ImgDisp";
    back = look.surface;
    width = 12000;
    height = 9000;
    escapecloses = true;
    scrolls = false;

    put(look, *this, image1, "Image1", "", {});
    image1.says = "Picture";

    load = [this] { open(); };
    resize = [this] { fit(); };
}

void ImgDisp::open()
{
    if (!loadinto(image1, viewimagename)) {
        closescreen(*this);
    }
}

void ImgDisp::fit()
{
    if (height <= above || width <= besides) {
        return;
    }
    hide(image1);
    resizeto(image1, width - besides, height - above);
    show(image1);
}

void viewimage(const std::string& filename)
{
    viewimagename = filename;
    ImgDisp screen;
    showmodal(screen);
}

bool loadinto(Picture& control, const std::string& filename)
{
    const LoadedPicture loaded = loadpicture(filename);
    if (!loaded.picture) {
        messagebox(filename + ' ' + spacednumber(loaded.error));
        return false;
    }
    setpicture(control, loaded.picture);
    return true;
}

} // namespace brindor
