#include "quiz/qmatch.h"

#include "base/numbers.h"
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
#include <utility>

namespace brindor {

using namespace toolkit;

namespace {

constexpr std::int16_t worthofpair = 5;
constexpr std::int16_t worthofall = 25;
constexpr int shufflesteps = 20;
constexpr std::int16_t shuffled = 4; // the description at the last position never moves

constexpr std::array<Colour, 5> barcolours = {
    {{255, 128, 0}, {255, 0, 255}, {0, 255, 255}, {0, 255, 0}, {255, 255, 0}}};

// A longer text stands smaller; the last row that holds wins.
struct FontStep {
    std::size_t longerthan;
    double points;
};
constexpr double shortnamesize = 13.5;
constexpr std::array<FontStep, 4> fontsteps = {{{20, 14}, {25, 12}, {28, 10}, {38, 8}}};

// The bars stand in a staircase above the descriptions, bar 4 highest and furthest left, each as high as the row that
// it will fill. On a row they leave the left part open, where the text of the description stands.
constexpr double rowheight = 660;
constexpr double barstep = rowheight + 60;
constexpr Place barplace(int bar)
{
    const int step = 4 - bar;
    return {4080.0 + step * 540, grid::margin + step * barstep, 4800, rowheight};
}
constexpr double rowsleft = 150;
constexpr double rowswidth = 11500;
constexpr double firstrow = grid::margin + 5 * barstep + grid::gap;
constexpr double rowstep = rowheight + grid::gap;
constexpr double opentextwidth = 3840;
constexpr double buttonstop = firstrow + 5 * rowstep + grid::gap;

} // namespace

Qmatch::Qmatch()
{
    const Colour blue{128, 128, 255};
    const Look look{blue, {255, 255, 128}, {Face::plain, 12, false}};

    name = "qmatch";
    caption = "Match 'em";
    back = blue;

    put(look, *this, frame1, "Frame1", "", {50, 50, 11900, 8900});
    put({blue, {}, {Face::plain, 13.5, false}}, frame1, label1, "Label1", "",
        {rowsleft, grid::margin, 3600, rowheight});
    // Tab goes through the bars from the top one down, and then through the descriptions.
    for (int b = 4; b >= 0; --b) {
        Button& bar = btn1[static_cast<std::size_t>(b)];
        put({{}, barcolours[static_cast<std::size_t>(b)], {Face::plain, shortnamesize, true}}, frame1, bar,
            indexed("Btn1", b), "", barplace(b));
        bar.bar = true;
        bar.tooltip = "Click and drag this item to its description, below";
        bar.press = [this, b] { pickup(b); };
        bar.click = [this, b] { pickup(b); };
    }
    for (std::size_t p = 0; p < label2.size(); ++p) {
        put({{255, 128, 255}, {}, {Face::plain, 12, true}}, frame1, label2[p],
            indexed("Label2", static_cast<std::int64_t>(p)), "",
            {rowsleft, firstrow + static_cast<double>(p) * rowstep, rowswidth, rowheight});
        label2[p].outlined = true;
        label2[p].textwidth = opentextwidth;
        label2[p].drop = [this, p] { drop(p); };
    }
    label2[0].tooltip = "Drag one of the colored bars to this description";

    // Skip loses everything: it stands apart from Done.
    const auto putbutton = [&](Button& button, const char* controlname, const char* text, double from) {
        put(look, frame1, button, controlname, text, {from, buttonstop, grid::buttonwidth, grid::buttonheight});
        button.accesskey = text[0];
    };
    putbutton(cmdhelp, "cmdhelp", "Help", rowsleft);
    putbutton(command2, "Command2", "Skip", rowsleft + grid::buttonwidth + grid::gap);
    putbutton(command1, "Command1", "Done", rowsleft + rowswidth - grid::buttonwidth);
    command2.tooltip = "Click here when you are ready to proceed";
    command1.tooltip = command2.tooltip;

    load = [this] { open(); };
    resize = [this] {
        fitframe(*this, qmatchrow, frame1, {100, 100}, {&label2[0], &label2[1], &label2[2], &label2[3], &label2[4]});
    };
    command1.click = [this] { judge(); };
    command2.click = [this] { closescreen(*this); };
    cmdhelp.click = [] {
        const std::string line(crlf);
        messagebox("Click on one of the colored bars at the top" + line +
                   "Then drag it down to the best match in the descriptions below" + line + line +
                   "Or, click on a colored bar, then click on the proper definition" + line + line +
                   "When all items are matched, click on 'done'");
    };
}

double barfontsize(std::size_t length)
{
    double points = shortnamesize;
    for (const FontStep& step : fontsteps) {
        if (length > step.longerthan) {
            points = step.points;
        }
    }
    return points;
}

void Qmatch::open()
{
    placeform(*this, qmatchrow, restoreplacement);
    centerform(*this);
    settext(label1, paramname(questionline, 0, qtype));
    logline("Match " + typenames[static_cast<std::size_t>(qtype)], 1, 0);
    for (std::int16_t i = 0; i < itemsasked; ++i) {
        const std::int16_t item = getitem(i);
        const auto at = static_cast<std::size_t>(i);
        placed[at] = -1;
        owner[at] = i;
        settext(btn1[at], paramname(itemname, item, 0));
        logline(btn1[at].text, 1, 0);
        setfontsize(btn1[at], barfontsize(charactercount(btn1[at].text)));
        settext(label2[at], paramname(itemtext, item, qtype));
    }
    shuffle();
}

void Qmatch::shuffle()
{
    for (int step = 0; step < shufflesteps; ++step) {
        const auto k = static_cast<std::size_t>(drawbelow(shuffled));
        if (k > 0) {
            const std::string text = label2[k].text;
            settext(label2[k], label2[k - 1].text);
            settext(label2[k - 1], text);
            std::swap(owner[k], owner[k - 1]);
        }
    }
}

void Qmatch::pickup(int bar)
{
    curbar = bar;
    startdrag(btn1[static_cast<std::size_t>(bar)]);
}

void Qmatch::drop(std::size_t p)
{
    Button& bar = btn1[static_cast<std::size_t>(curbar)];
    enddrag(bar);
    movetop(bar, label2[p].place.top);
    placed[p] = curbar;
}

void Qmatch::judge()
{
    Showscor showscor;
    toolkit::load(showscor);
    std::string text;
    std::int16_t correct = 0;
    for (std::size_t p = 0; p < label2.size(); ++p) {
        if (placed[p] == owner[p]) {
            markused(chosen[p], rightmark);
            ++correct;
        } else if (placed[p] >= 0) {
            const std::int16_t item = chosen[static_cast<std::size_t>(placed[p])];
            markused(chosen[p], wrongmark);
            const std::string line = paramname(itemname, item, 0) + " = " + paramname(itemtext, item, qtype);
            text += std::string(crlf) + line;
            logline(line, 2, 0);
        }
    }
    const std::int16_t points = index16(correct * worthofpair);
    addscore(points, worthofall, 0);
    text += std::string(crlf) + "*** Scored " + numbertext(points) + " of " + numbertext(worthofall);
    if (points == worthofall) {
        text = "*** All correct!";
        logline(" *** All correct!", 2, 0);
    }
    settext(showscor.text1, text);
    showresult(showscor, "Results for Matching ", *this);
}

void playqmatch()
{
    Qmatch screen;
    showmodal(screen);
}

} // namespace brindor
