#include "frame/game.h"

#include "base/numbers.h"
#include "base/random.h"
#include "base/text.h"
#include "frame/services/log.h"
#include "frame/services/score.h"
#include "frame/services/settings.h"
#include "questions/question.h"
#include "questions/selection.h"
#include "questions/types.h"
#include "quiz/mchoice.h"
#include "quiz/qmatch.h"
#include "quiz/qsort.h"
#include "timeline/timeline.h"
#include "toolkit/operations.h"

#include <string>

namespace brindor {

std::int16_t nplayers = 1;
std::int16_t nrounds = 1;
std::int16_t targetscore = 999;

namespace {

bool enabled(std::int16_t type)
{
    return typeenabled[static_cast<std::size_t>(type)] != 0;
}

// Tells why no question can be asked; false where one can.
bool nothingtoask()
{
    const ByType<bool> fillable = fillabletypes();
    bool selected = false;
    for (std::int16_t type = 1; type <= lasttype; ++type) {
        if (enabled(type) && fillable[static_cast<std::size_t>(type)]) {
            return false;
        }
        selected = selected || enabled(type);
    }
    toolkit::messagebox(
        selected ? "The timeline " + curfile +
                       " has too few different items for the kinds of question selected. Select other "
                       "kinds with the Setup button, or another period with View/Select on the same screen."
                 : std::string("No kind of question is selected. Select at least one with the Setup button."));
    return true;
}

// Type 1 takes the draws of 0 too, so it has two chances where each other type has one.
std::int16_t drawtype(const ByType<bool>& fillable)
{
    for (;;) {
        const std::int16_t type = clampvalue(drawbelow(lasttype + 1), 1, lasttype);
        if (enabled(type) && fillable[static_cast<std::size_t>(type)]) {
            return type;
        }
    }
}

void closingmessage(const PlayerRec& best)
{
    toolkit::announce(nplayers > 1 ? best.name + " is the winner"
                                   : "You scored " + numbertext(best.right) + " out of " + numbertext(best.asked) +
                                         " (" + numbertext(best.percent) + "%)");
}

} // namespace

void playgame()
{
    targetscore = 999;
    nrounds = 1;
    nplayers = 1;
    curplayer = 0;
    players[0].right = 0;
    players[static_cast<std::size_t>(curplayer)].asked = 0;
    if (nothingtoask()) {
        return;
    }
    std::int16_t bestscore = 0;
    std::size_t bestplayer = 0;
    for (std::int16_t round = 1; round <= nrounds && bestscore < targetscore; ++round) {
        playround(round);
        if (nplayers > 1) {
            for (std::size_t row = 0; row < static_cast<std::size_t>(nplayers); ++row) {
                if (players[row].right > bestscore) {
                    bestscore = players[row].right;
                    bestplayer = row;
                }
            }
        }
    }
    if (!toolkit::quitting()) {
        closingmessage(players[bestplayer]);
    }
}

void playround(std::int16_t round)
{
    if (nplayers > 1) {
        logline("=====Round " + numbertext(round), 1, 1);
    }
    const ByType<bool> fillable = fillabletypes(); // the Timeline does not change while a game is played
    for (std::int16_t count = 0; count < nquestion && !toolkit::quitting(); ++count) {
        const std::int16_t type = drawtype(fillable);
        logline("---- Question " + numbertext(count + 1), 2, 0);
        showquestion(type);
    }
}

void showquestion(std::int16_t type)
{
    qtype = type;
    switch (kindof(type).screen) {
    case QuizScreen::mchoice:
        playmchoice();
        break;
    case QuizScreen::qsort:
        playqsort();
        break;
    case QuizScreen::qmatch:
        playqmatch();
        break;
    case QuizScreen::none:
        break;
    }
}

} // namespace brindor
