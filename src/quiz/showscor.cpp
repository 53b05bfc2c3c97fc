#include "quiz/showscor.h"

#include "base/text.h"
#include "frame/services/placement.h"
#include "frame/services/score.h"
#include "quiz/look.h"
#include "toolkit/operations.h"

namespace brindor {

using namespace toolkit;

Showscor::Showscor()
{
    const Colour orange{255, 128, 0};
    const Font font{"MS Sans Serif", 13.5, false};

    name = "showscor";
    caption = "Quorvel Mind Tourney Scores";
    back = orange;
    escapecloses = true;
    defaultbutton = &command1;

    add(*this, frame1, "Frame1");
    dress(frame1, " ", orange, font, {50, 50, 11900, 8900});
    add(frame1, label1, "Label1");
    dress(label1, "Label1", orange, font, {150, 240, 5400, 480});
    add(frame1, text1, "Text1");
    dress(text1, "Text1", {255, 255, 0}, font, {150, 840, 11500, 6720});
    text1.multiline = true;
    text1.readonly = true;
    text1.says = "Result";
    add(frame1, command1, "Command1");
    dress(command1, "ok", {0, 255, 0}, font, {150, 7680, 1440, 480});
    command1.tooltip = "Click here when  ready to proceed";
    command1.accesskey = 'o';
    add(frame1, label2, "Label2");
    dress(label2, "Label2", orange, font, {1710, 7680, 4800, 480});

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

} // namespace brindor
