#include "frame/mainscreen.h"
#include "toolkit/operations.h"
#include "toolkit/qt/application.h"
#include "toolkit/qt/qthost.h"

#include <string>

int main(int argc, char** argv)
{
    using namespace brindor;
    return toolkit::qt::runapplication(argc, argv, [] {
        const std::string folder = toolkit::qt::programfolder();
        const toolkit::QtHost host(folder + "/bdqzoom.txt");
        MainScreen screen(folder);
        toolkit::showmodal(screen);
    });
}
