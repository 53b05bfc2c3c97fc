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

std::string writtenanew()
{
    readsettings();
    require(leadingnumber(mindif) >= 1 && leadingnumber(mindif) <= highestdifficulty);
    require(maxdif >= 1 && maxdif <= highestdifficulty);
    require(nquestion >= 1 && nquestion <= mostquestions);
    require(logstatus >= 0 && logstatus <= 2 && curperiod >= 0 && curperiod <= lastperiod);
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
    const std::string once = writtenanew();
    require(writtenanew() == once);
    return 0;
}
