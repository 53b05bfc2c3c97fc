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
        const toolkit::QtHost host;
        const std::string programfolder = toolkit::qt::programfolder();
        const Result<std::string> folder = readyplayerfolder(programfolder);
        if (!folder) {
            toolkit::messagebox(folder.reason + " The game starts all the same; settings and log will not be kept.");
        }
        MainScreen screen(folder.value.value_or(programfolder));
        toolkit::showmodal(screen);
    });
}
