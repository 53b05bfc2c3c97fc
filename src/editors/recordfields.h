#pragma once

#include "editors/daterules.h"
#include "timeline/timeline.h"
#include "toolkit/controls.h"
#include "toolkit/dress.h"

#include <array>
#include <cstdint>

namespace brindor {

// The controls that the person editor and the event editor both have, and what they show of an item.
struct RecordFields : toolkit::Screen {
    toolkit::Label namelabel;
    toolkit::Combo combo1; // the name list; a line's position is the record's index
    toolkit::Label desclabel;
    toolkit::TextBox desc; // desc1 and desc2 as two lines
    toolkit::Label label1;
    toolkit::TextBox date1;
    toolkit::Label label2;
    toolkit::TextBox date2;
    toolkit::Frame frame1;                       // the kind of date1
    toolkit::Frame frame2;                       // the kind of date2
    std::array<toolkit::OptionButton, 6> option; // Option1 to Option3 in frame1, the others in frame2
    toolkit::Button cmdprev;
    toolkit::Button cmdnext;
    toolkit::Button cmdnew;
    toolkit::Button cmddelete;
    toolkit::Button cmdok;

    std::int16_t datachanged = 0; // 0 or -1: a field has changed since the record was shown or its change offered
    std::int16_t olddate1 = 0;    // the date1 that was last shown

protected:
    // A screen puts its controls in the order of Tab: these fields, its own, the buttons. `inwidth` is that of the
    // whole screen between its margins.
    void putfields(const toolkit::Look& look, double inwidth);
    void putbuttons(const toolkit::Look& look, double above, double inwidth);

    // Connects the events of the fields: each change counts, and a date that loses the focus follows the rules.
    void watchfields(const DateRules& rules);

    void showfields(const ItemRec& item);
    // An item whose kind of date has no option on keeps it. Lines behind the second stay in desc2; with one line only
    // desc2 becomes a blank.
    void storefields(ItemRec& item) const;

    // Where a screen's own fields stand, below the two dates or beside them, in twips.
    static constexpr double captionwidth = 1320;
    static constexpr double datestop = 1920;
    static constexpr double dateswidth = 4920;
    static constexpr double datesbottom =
        datestop + toolkit::grid::row + toolkit::grid::gap + toolkit::optionsheight(3);
    static constexpr double besidedates = toolkit::grid::margin + dateswidth + toolkit::grid::margin;
};

} // namespace brindor
