#include "quiz/qsort.h"

#include "base/numbers.h"
#include "base/program.h"
#include "base/text.h"
#include "frame/services/log.h"
#include "frame/services/placement.h"
#include "frame/services/score.h"
#include "questions/marks.h"
#include "questions/question.h"
#include "questions/selection.h"
#include "questions/sortvalues.h"
#include "questions/texts.h"
#include "quiz/showscor.h"
#include "toolkit/dress.h"
#include "toolkit/operations.h"

#include <string>
#include <utility>

namespace brindor {

using namespace toolkit;

namespace {

constexpr std::int16_t worthofpair = 2;
constexpr double judgedfontsize = 10;

std::int16_t& slot(std::int16_t line)
{
    return chosen[static_cast<std::size_t>(line)];
}

} // namespace

Qsort::Qsort()
{
    const Look look{{128, 255, 255}, {0, 255, 255}, {Face::plain, 13.5, false}, {192, 192, 192}};

    name = "qsort";
    caption = quizcaption;
    back = look.surface;

    // The list fills the screen; the frame stands in the middle of what is outside the title bar as well.
    constexpr double inwidth = 11400;
    constexpr double listtop = 480 + grid::gap;
    constexpr double listheight = 6300;
    constexpr double hinttop = listtop + listheight + grid::gap;
    constexpr double buttonstop = hinttop + 480 + grid::gap;
    put(look, *this, frame1, "Frame1", "", {0, 0, inwidth, buttonstop + grid::buttonheight});
    put(look, frame1, label1, "Label1", "", {0, 0, inwidth, 480});
    put(look, frame1, list1, "List1", "", {0, listtop, inwidth, listheight});
    list1.pushesup = true;
    list1.says = "Items to sort";
    label1.names = &list1;
    put(look, frame1, label2, "Label2", "", {0, hinttop, inwidth, 480});
    put(look, frame1, command2, "Command2", "Help", {0, buttonstop, grid::buttonwidth, grid::buttonheight});
    command2.accesskey = 'H';
    put(look, frame1, command1, "Command1", "Done",
        {inwidth - grid::buttonwidth, buttonstop, grid::buttonwidth, grid::buttonheight});
    command1.accesskey = 'D';

    load = [this] { open(); };
    resize = [this] {
        placeform(*this, qsortrow, storeplacement);
        centerframe(frame1, *this);
    };
    list1.pick = [this](std::int16_t line) { push(line); };
    command1.click = [this] { judge(); };
    command2.click = [] {
        messagebox("Sort the items listed.  Click on a line to move that item up one level.  When all are in "
                   "position, click 'Done'");
    };
}

void Qsort::open()
{
    placeform(*this, qsortrow, restoreplacement);
    centerform(*this);
    centerframe(frame1, *this);
    logline("Items to sort by " + typenames[static_cast<std::size_t>(qtype)], 1, 0);
    settext(label1, paramname(sortprompt, 0, qtype));
    settext(label2, "Click to push an item up one slot");
    for (std::int16_t i = 0; i < itemsasked; ++i) {
        logline(paramname(itemname, getitem(i), 0), 1, 0);
    }
    lastline = itemsasked - 1;
    updatelist();
}

void Qsort::updatelist()
{
    clearlist(list1);
    for (std::int16_t line = 0; line <= lastline; ++line) {
        additem(list1, paramname(itemname, slot(line), 0));
    }
}

void Qsort::push(std::int16_t k)
{
    if (k > 0 && k <= lastline) {
        std::swap(slot(k), slot(static_cast<std::int16_t>(k - 1)));
        updatelist();
    }
}

void Qsort::judge()
{
    Showscor showscor;
    toolkit::load(showscor);
    std::string text = " ";
    std::int16_t correct = 0;
    std::int16_t pairs = 0;
    setfontsize(list1, judgedfontsize);
    for (std::int16_t i = 0; i < lastline; ++i) {
        for (std::int16_t j = i; ++j <= lastline;) {
            ++pairs;
            if (getsortval(slot(i), qtype) > getsortval(slot(j), qtype)) {
                const std::string line = paramname(sortline, slot(i), slot(j));
                logline(line, 1, 0);
                text += std::string(crlf) + line;
                markused(slot(i), wrongmark);
                markused(slot(j), wrongmark);
            } else {
                ++correct;
                markused(slot(i), rightmark);
            }
        }
    }
    if (correct == pairs) {
        logline(" *** All Correct!", 1, 0);
        text = "*** All correct!";
    }
    const std::int16_t points = index16(correct * worthofpair);
    addscore(points, index16(pairs * worthofpair), 0);
    text += std::string(crlf) + "*** " + numbertext(correct) + " of " + numbertext(pairs) + " correct, scored " +
            numbertext(points);
    settext(showscor.text1, text);
    showresult(showscor, "Results for Sorting ", *this);
}

void playqsort()
{
    Qsort screen;
    showmodal(screen);
}

} // namespace brindor
