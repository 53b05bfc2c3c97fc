// The settings file: any bytes leave values within their ranges, and what is written is read again as it was.

#include "frame/services/settings.h"
#include "base/files.h"
#include "base/text.h"
#include "ground.h"
#include "questions/question.h"
#include "timeline/timeline.h"

using namespace brindor;
using namespace brindor::fuzz;

namespace {

constexpr const char* file = "bdq.INI";

void readandlook()
{
    readsettings();
    require(leadingnumber(mindif) >= 1 && leadingnumber(mindif) <= highestdifficulty);
    require(maxdif >= 1 && maxdif <= highestdifficulty);
    require(nquestion >= 1 && nquestion <= mostquestions);
    require(logstatus >= 0 && logstatus <= 2 && curperiod >= 0 && curperiod <= lastperiod);
}

std::string written()
{
    writesettings();
    const Result<std::string> content = readwhole(file, 1U << 20U);
    require(content.value.has_value());
    return *content.value;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    preparedground();
    writeinput(file, textof(data, size));
    readandlook();
    static unsigned count = 0;
    if (++count % 64 == 0) { // a write is flushed to the disk, which takes its time
        const std::string once = written();
        readandlook();
        require(written() == once);
    }
    return 0;
}
