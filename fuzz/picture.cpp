// The picture loader of the windows: any bytes give a picture or a reason, within the loader's limits of memory.

#include "ground.h"
#include "toolkit/qt/pictures.h"

#include <QGuiApplication>
#include <QImage>

#include <cstdlib>

using namespace brindor;
using namespace brindor::fuzz;

namespace {

constexpr const char* file = "picture.png"; // what it is says the content, not the name

// That the decoders are reached at all.
bool goodone()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image.save(file) && toolkit::qt::loadpicturefile(file).error == 0;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "picture";
    static char* argv[] = {name, nullptr};
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static const QGuiApplication application(argc, argv);
    preparedground();
    static const bool reachable = goodone();
    require(reachable);
    writeinput(file, textof(data, size));
    const toolkit::LoadedPicture loaded = toolkit::qt::loadpicturefile(file);
    require((loaded.picture != nullptr) == (loaded.error == 0));
    return 0;
}
