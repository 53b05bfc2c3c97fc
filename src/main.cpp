#include "frame/mainscreen.h"
#include "toolkit/operations.h"
#include "toolkit/qt/application.h"
#include "toolkit/qt/qthost.h"

int main(int argc, char** argv)
{
    using namespace brindor;
    return toolkit::qt::runapplication(argc, argv, [] {
        const toolkit::QtHost host;
        MainScreen screen(toolkit::qt::programfolder());
        toolkit::showmodal(screen);
    });
}
