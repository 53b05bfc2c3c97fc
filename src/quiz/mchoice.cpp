#include "quiz/mchoice.h"

#include "base/random.h"
#include "base/text.h"
#include "frame/services/log.h"
#include "frame/services/placement.h"
#include "frame/services/score.h"
#include "questions/marks.h"
#include "questions/question.h"
#include "questions/selection.h"
#include "questions/texts.h"
#include "quiz/look.h"
#include "quiz/result.h"
#include "quiz/showscor.h"
#include "toolkit/operations.h"

#include <string>

namespace brindor {

using namespace toolkit;

namespace {

constexpr std::int16_t placesoftheright = 4; // one fewer than there are choices
constexpr std::int16_t worth = 5;

} // namespace

Mchoice::Mchoice()
{
    const Colour pale{192, 255, 192};
    const Colour green{128, 255, 128};
    const Colour yellow{255, 255, 0};
    const Font buttonfont{"MS Sans Serif", 12, true};

    name = "mchoice";
    caption = "Quorvel Mind Tourney";
    back = pale;

    add(*this, frame1, "Frame1");
    dress(frame1, " ", pale, buttonfont, {40, 25, 11920, 8950});
    add(frame1, label1, "Label1");
    dress(label1, "", green, {"Arial", 15.75, true}, {140, 240, 11520, 900});
    for (std::int16_t i = 0; i < itemsasked; ++i) {
        OptionButton& option = choice[static_cast<std::size_t>(i)];
        add(frame1, option, indexed("choice", i));
        dress(option, "", green, {"MS Serif", 12, true}, {140, 1260.0 + i * 1260, 11520, 1140});
        option.press = [this, i] { answer(i); };
    }
    add(frame1, cmdhelp, "cmdhelp");
    dress(cmdhelp, "help", yellow, buttonfont, {140, 7680, 1440, 480});
    cmdhelp.accesskey = 'h';
    add(frame1, command1, "Command1");
    dress(command1, "skip", yellow, buttonfont, {1700, 7680, 1440, 480});
    command1.accesskey = 's';

    load = [this] { open(); };
    resize = [this] {
        fitframe(*this, mchoicerow, frame1, {80, 50},
                 {&choice[0], &choice[1], &choice[2], &choice[3], &choice[4], &label1});
    };
    command1.click = [this] { closescreen(*this); };
    cmdhelp.click = [] {
        messagebox("Click on the best description." + std::string(crlf) + "Click on skip to move to the next question");
    };
}

void Mchoice::open()
{
    placeform(*this, mchoicerow, restoreplacement);
    centerform(*this);
    resize();
    logline("Multiple Choice", 1, 0);
    rightchoice = drawbelow(placesoftheright);
    for (std::int16_t i = 0; i < itemsasked; ++i) {
        OptionButton& option = choice[static_cast<std::size_t>(i)];
        clearselection(option);
        settext(option, paramname(itemtext, getitem(i), qtype));
    }
    askeditem = chosen[static_cast<std::size_t>(rightchoice)];
    settext(label1, paramname(questionline, askeditem, qtype));
}

void Mchoice::answer(std::int16_t i)
{
    const OptionButton& right = choice[static_cast<std::size_t>(rightchoice)];
    Showscor showscor;
    toolkit::load(showscor);
    select(choice[static_cast<std::size_t>(i)]);
    if (i != rightchoice) {
        addscore(0, worth, 0);
        settext(showscor.text1, "Sorry, the answer was " + right.text);
        logline(label1.text + ' ' + right.text, 1, 0);
        markused(chosen[static_cast<std::size_t>(i)], wrongmark);
        markused(askeditem, wrongmark);
    } else {
        settext(showscor.text1, " Correct, +5 pts");
        addscore(worth, worth, 0);
        markused(askeditem, rightmark);
    }
    showresult(showscor, "Results for ", *this);
}

void playmchoice()
{
    Mchoice screen;
    showmodal(screen);
}

} // namespace brindor
