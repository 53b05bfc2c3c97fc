#include "questions/catalogue.h"

#include "questions/types.h"

namespace brindor {

std::array<std::string, 15> typenames;
std::array<std::int16_t, 15> typeenabled{};
std::int16_t qtype = 0;
std::array<std::int16_t, 6> chosen{};
double isperson = 0;

void filltables()
{
    for (std::int16_t type = 0; type <= lasttype; ++type) {
        typenames[static_cast<std::size_t>(type)] = kindof(type).name;
    }
}

} // namespace brindor
