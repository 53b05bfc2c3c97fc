#include "support/gametest.h"

#include "frame/failures.h"
#include "frame/log.h"
#include "frame/score.h"
#include "frame/settings.h"
#include "questions/catalogue.h"

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
