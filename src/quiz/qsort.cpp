#include "quiz/qsort.h"

#include "base/numbers.h"
#include "base/text.h"
#include "frame/services/log.h"
#include "frame/services/placement.h"
#include "frame/services/score.h"
#include "questions/marks.h"
#include "questions/question.h"
#include "questions/selection.h"
#include "questions/sortvalues.h"
#include "questions/texts.h"
#include "quiz/look.h"
#include "quiz/result.h"
#include "quiz/showscor.h"
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
    const Colour pale{128, 255, 255};
    const Colour cyan{0, 255, 255};
    const Font font{"MS Sans Serif", 13.5, false};

    name = "qsort";
    caption = "Quorvel Mind Tourney";
    back = pale;

    add(*this, frame1, "Frame1");
    dress(frame1, "", pale, font, {0, 0, 8160, 6480});
    add(frame1, label1, "Label1");
    dress(label1, "", pale, font, {240, 240, 7680, 480});
    add(frame1, list1, "List1");
    dress(list1, "", {192, 192, 192}, font, {240, 840, 7680, 4080});
    list1.says = "Items to sort";
    add(frame1, label2, "Label2");
    dress(label2, "", pale, font, {240, 5040, 7680, 480});
    add(frame1, command2, "Command2");
    dress(command2, "Help", cyan, font, {240, 5760, 1440, 480});
    command2.accesskey = 'H';
    add(frame1, command1, "Command1");
    dress(command1, "Done", cyan, font, {1800, 5760, 1440, 480});
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
