#pragma once

#include "base/result.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace brindor::authoring {

using ZipContent = std::map<std::string, std::string>; // contents by name

// The files as a zip file. The same files give the same bytes.
Result<std::string> zipped(const ZipContent& files);

// The files in a zip file, which may come from a stranger. Fails where it is no such file or holds more than `limit`
// bytes, unpacked, and for a name that stands twice.
Result<ZipContent> unzipped(std::string_view bytes, std::size_t limit);

} // namespace brindor::authoring
