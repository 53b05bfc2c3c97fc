// The spreadsheets of people and events, parted by a byte 30: what check calls an error make refuses, and what make
// writes the reader reads.

#include "authoring/commands.h"
#include "authoring/csvfile.h"
#include "ground.h"
#include "timeline/reader.h"

#include <unistd.h>

using namespace brindor;
using namespace brindor::authoring;
using namespace brindor::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    preparedground();
    const std::string_view text = textof(data, size);
    const std::size_t parting = std::min(text.find('\x1e'), text.size());
    writeinput("people.csv", text.substr(0, parting));
    writeinput("events.csv", text.substr(std::min(parting + 1, text.size())));
    ::unlink("Own.bd3");
    const bool sound = !haserrors(checkfolder("."));
    const bool made = !haserrors(maketimeline(".", "Own.bd3", true).findings);
    require(made || !sound);
    require(made == (::access("Own.bd3", F_OK) == 0));
    if (made) {
        require(filltimeline("Own.bd3").value.has_value());
    }
    return 0;
}
