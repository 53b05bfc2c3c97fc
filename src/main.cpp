#include "base/folders.h"
#include "base/playerfolder.h"
#include "frame/mainscreen.h"
#include "toolkit/operations.h"
#include "toolkit/qt/application.h"
#include "toolkit/qt/qthost.h"

#include <string>

int main(int argc, char** argv)
{
    using namespace brindor;
    return toolkit::qt::runapplication(argc, argv, [] {
        const std::string programfolder = brindor::programfolder();
        const Result<std::string> ready = readyplayerfolder(programfolder);
        const std::string folder = ready.value.value_or(programfolder);
        const toolkit::QtHost host(folder + "/bdqzoom.txt");
        if (!ready) {
            toolkit::messagebox(ready.reason + " The game starts all the same; settings and log will not be kept.");
        }
        MainScreen screen(folder);
        toolkit::showmodal(screen);
    });
}
