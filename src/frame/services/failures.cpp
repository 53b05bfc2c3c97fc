#include "frame/services/failures.h"

#include "toolkit/operations.h"

#include <utility>

namespace brindor {

namespace {
bool told = false;
}

void tellfailureonce(const std::string& file, const std::string& reason)
{
    if (!std::exchange(told, true)) {
        toolkit::messagebox(
            file + " cannot be written: " + reason +
            ". The game goes on, but settings and log may not be kept. Check the program's folder and the "
            "space on its disk.");
    }
}

void forgetfailures()
{
    told = false;
}

} // namespace brindor
