#include "support/gametest.h"

#include "frame/services/failures.h"
#include "frame/services/log.h"
#include "frame/services/score.h"
#include "frame/services/settings.h"
#include "questions/question.h"

namespace brindor::tests {

GameTest::GameTest()
{
    forgetfailures();
    readsettings(); // an empty folder gives the defaults
    filltables();
    players.fill({});
    curplayer = 0;
    resetlog();
}

std::string GameTest::log()
{
    return contentof("bdqquiz.log");
}

} // namespace brindor::tests
