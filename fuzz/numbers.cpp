// The number texts: any bytes give a number that survives being written and read again.

#include "base/text.h"
#include "ground.h"

#include <cmath>

using namespace brindor;
using namespace brindor::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = textof(data, size);
    const double value = textvalue(text);
    require(!std::isnan(value));
    if (std::isfinite(value)) {
        require(std::abs(textvalue(decimaltext(value)) - value) <= 1e-14 * std::abs(value));
    }
    const std::int64_t leading = leadingnumber(text);
    require(leadingnumber(numbertext(leading)) == leading);
    if (const auto whole = wholenumber(text)) {
        require(*whole == leading && wholenumber(numbertext(*whole)) == whole);
    }
    require(isutf8(toutf8(text)) && charactercount(text) <= text.size());
    return 0;
}
