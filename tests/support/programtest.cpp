#include "support/programtest.h"

#include "base/files.h"
#include "base/random.h"

namespace brindor::tests {

ProgramTest::ProgramTest()
{
    faultplan = {};
    seedrandom(1);
    setcatalogues({}, {}, {}, {});
    settimeline({}, {});
    mindate = 9999;
    maxdate = -25000;
    curperiod = 0;
    curfile.clear();
    viewonly = 1;
}

ProgramTest::~ProgramTest()
{
    faultplan = {};
}

} // namespace brindor::tests
