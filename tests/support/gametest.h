#pragma once

#include "support/programtest.h"

#include <string>

namespace brindor::tests {

// A ProgramTest with the tables filled, default settings (all types on, everything logged), an empty score and an
// empty log.
class GameTest : public ProgramTest {
protected:
    GameTest();

    static std::string log(); // what stands in the question log
};

} // namespace brindor::tests
