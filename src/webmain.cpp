#include "base/random.h"
#include "frame/mainscreen.h"
#include "frame/services/settings.h"
#include "toolkit/operations.h"
#include "toolkit/web/webhost.h"

int main()
{
    using namespace brindor;
    const toolkit::WebHost host([] { writesettings(); });
    MainScreen screen("/game"); // where the page puts the files
    toolkit::load(screen);
    if (const auto seed = toolkit::web::seedofaddress()) {
        seedrandom(*seed);
    }
    toolkit::showmodal(screen);
    toolkit::web::tellended();
}
