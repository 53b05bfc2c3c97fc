#pragma once

#include "frame/services/failures.h"
#include "frame/services/log.h"
#include "frame/services/score.h"
#include "frame/services/settings.h"
#include "questions/question.h"
#include "support/programtest.h"

namespace brindor::tests {

// A ProgramTest with the tables filled, default settings (all types on, everything logged), an empty score and an
// empty log.
class GameTest : public ProgramTest {
protected:
    GameTest()
    {
        forgetfailures();
        readsettings(); // an empty folder gives the defaults
        filltables();
        players.fill({});
        curplayer = 0;
        resetlog();
    }

    static std::string log() { return contentof("bdqquiz.log"); } // what stands in the question log
};

} // namespace brindor::tests
