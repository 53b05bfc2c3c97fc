#pragma once

#include "base/files.h"
#include "base/random.h"
#include "support/scratchfolder.h"
#include "support/story.h"
#include "support/timelines.h"

namespace brindor::tests {

// What nearly every test needs comes with this header. A test of its own small world: an empty scratch folder, a host
// without windows, an empty Timeline, a random generator with a known seed, no planned file faults.
class ProgramTest : public testing::Test {
protected:
    ProgramTest()
    {
        seedrandom(1);
        setcatalogues({}, {}, {}, {});
        settimeline({}, {});
        mindate = 9999;
        maxdate = -25000;
        curperiod = 0;
        curfile.clear();
        viewonly = 1;
    }
    ~ProgramTest() override { faultplan = {}; }

    // Opens a screen of this name, tells a story on it and closes it from its title bar. Gives what was said before and
    // the transcript, with "*" at its end where the story has closed the screen.
    std::string visit(const std::string& name, const std::function<void()>& open, const std::string& story,
                      const std::function<std::string(toolkit::Screen&)>& look = {})
    {
        std::string transcript;
        host.persons[name] = [&](toolkit::Screen& screen) {
            transcript = said(host);
            transcript += act(host, screen, story, [&] { return look(screen); });
            transcript += toolkit::userclose(screen) ? "" : "*";
        };
        open();
        return transcript;
    }

    ScratchFolder folder;
    MemoryHost host;
};

} // namespace brindor::tests
