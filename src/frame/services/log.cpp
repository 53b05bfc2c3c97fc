#include "frame/services/log.h"

#include "base/files.h"
#include "frame/services/failures.h"
#include "frame/services/settings.h"
#include "toolkit/operations.h"

namespace brindor {

namespace {

constexpr const char* logfile = "bdqquiz.log";
constexpr std::int16_t off = 0;

void tell(const Result<Done>& result)
{
    if (!result) {
        tellfailureonce(logfile, result.reason);
    }
}

} // namespace

void logline(const std::string& text, std::int16_t level, std::int16_t popup)
{
    if (level < logstatus) {
        return;
    }
    if (logstatus != off) {
        tell(appendtofile(logfile, text + "\r\n"));
    }
    if (popup == 1) {
        toolkit::messagebox(text);
    }
}

void resetlog()
{
    tell(emptyfile(logfile));
}

} // namespace brindor
