#include "base/program.h"

namespace brindor {

const std::string_view versiontext = BRINDOR_VERSION;

} // namespace brindor
