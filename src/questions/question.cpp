#include "questions/question.h"

#include "questions/types.h"

namespace brindor {

ByType<std::string> typenames;
ByType<std::int16_t> typeenabled{};
std::int16_t qtype = 0;
std::array<std::int16_t, itemsasked + 1> chosen{};
double isperson = 0;

void filltables()
{
    for (std::int16_t type = 0; type <= lasttype; ++type) {
        typenames[static_cast<std::size_t>(type)] = kindof(type).name;
    }
}

} // namespace brindor
