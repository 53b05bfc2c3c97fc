#include "quiz/mchoice.h"

#include "base/program.h"
#include "base/random.h"
#include "base/text.h"
#include "frame/services/log.h"
#include "frame/services/placement.h"
#include "frame/services/score.h"
#include "questions/marks.h"
#include "questions/question.h"
#include "questions/selection.h"
#include "questions/texts.h"
#include "quiz/showscor.h"
#include "toolkit/dress.h"
#include "toolkit/operations.h"

#include <string>

namespace brindor {

using namespace toolkit;

namespace {

constexpr std::int16_t worth = 5;

} // namespace

Mchoice::Mchoice()
{
    const Colour green{128, 255, 128};
    const Look look{{192, 255, 192}, {255, 255, 0}, {Face::plain, 12, true}};

    name = "mchoice";
    caption = quizcaption;
    back = look.surface;

    put(look, *this, frame1, "Frame1", " ", {40, 25, 11920, 8950});
    put({green, {}, {Face::heading, 15.75, true}}, frame1, label1, "Label1", "", {140, 240, 11520, 900});
    for (std::int16_t i = 0; i < itemsasked; ++i) {
        OptionButton& option = choice[static_cast<std::size_t>(i)];
        put({green, {}, {Face::reading, 12, true}}, frame1, option, indexed("choice", i), "",
            {140, 1260.0 + i * 1300, 11520, 1180});
        option.press = [this, i] { answer(i); };
    }
    put(look, frame1, cmdhelp, "cmdhelp", "help", {140, 7860, grid::buttonwidth, grid::buttonheight});
    cmdhelp.accesskey = 'h';
    put(look, frame1, command1, "Command1", "skip", {1700, 7860, grid::buttonwidth, grid::buttonheight});
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
        settext(showscor.text1, " Correct, +" + numbertext(worth) + " pts");
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
