// The picture loader of the windows: any bytes give a picture or a reason, within the loader's limits of memory.

#include "ground.h"
#include "toolkit/qt/pictures.h"

#include <QGuiApplication>

#include <cstdlib>

using namespace brindor;
using namespace brindor::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static int argc = 1;
    static char name[] = "picture";
    static char* argv[] = {name, nullptr};
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static const QGuiApplication application(argc, argv);
    preparedground();
    writeinput("picture", textof(data, size));
    const toolkit::LoadedPicture loaded = toolkit::qt::loadpicturefile("picture");
    require((loaded.picture != nullptr) == (loaded.error == 0));
    return 0;
}
