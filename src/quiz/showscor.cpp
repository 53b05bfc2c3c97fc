#include "quiz/showscor.h"

#include "base/program.h"
#include "base/text.h"
#include "frame/services/placement.h"
#include "frame/services/score.h"
#include "questions/question.h"
#include "toolkit/dress.h"
#include "toolkit/operations.h"

namespace brindor {

using namespace toolkit;

Showscor::Showscor()
{
    const Look look{{255, 128, 0}, {0, 255, 0}, {Face::plain, 13.5, false}, {255, 255, 0}};

    name = "showscor";
    caption = std::string(quizcaption) + " Scores";
    back = look.surface;
    escapecloses = true;
    defaultbutton = &command1;

    put(look, *this, frame1, "Frame1", " ", {50, 50, 8300, 5300});
    put(look, frame1, label1, "Label1", "Label1", {150, 240, 7900, 480});
    put(look, frame1, text1, "Text1", "Text1", {150, 840, 7900, 3120});
    text1.multiline = true;
    text1.readonly = true;
    text1.says = "Result";
    label1.names = &text1;
    put(look, frame1, command1, "Command1", "ok", {150, 4200, grid::buttonwidth, grid::buttonheight});
    command1.tooltip = "Click here when  ready to proceed";
    command1.accesskey = 'o';
    put(look, frame1, label2, "Label2", "Label2", {1710, 4200, 4500, 480});

    load = [this] {
        placeform(*this, showscorrow, restoreplacement);
        centerform(*this);
        scoreCaption();
    };
    resize = [this] { fitframe(*this, showscorrow, frame1, {100, 100}, {&text1}); };
    command1.click = [this] { closescreen(*this); };
}

void Showscor::scoreCaption()
{
    const PlayerRec& player = players[static_cast<std::size_t>(curplayer)];
    settext(label2, "Current score: " + numbertext(player.right) + " of " + numbertext(player.asked) + "  (" +
                        numbertext(player.percent) + "%)");
}

void showresult(Showscor& showscor, const std::string& heading, toolkit::Screen& quizscreen)
{
    showscor.scoreCaption();
    settext(showscor.label1, heading + typenames[static_cast<std::size_t>(qtype)]);
    showmodal(showscor);
    closescreen(quizscreen);
}

} // namespace brindor
