#pragma once

#include "editors/recordeditor.h"

namespace brindor {

// The events, one at a time, with their pictures.
struct EEntry : RecordEditor<EventFamily> {
    EEntry();

    toolkit::Label grouplabel;
    toolkit::Combo cbogroup;
    toolkit::Label nation1label;
    toolkit::Combo cbonation1;
    toolkit::Label nation2label;
    toolkit::Combo cbonation2;
    toolkit::Label picturelabel;
    toolkit::TextBox eimgname; // a change loads nothing; the picture follows when a record is shown
    toolkit::Label label3;     // "Size"
    toolkit::TextBox text2;    // imagesize1
    toolkit::TextBox text3;    // imagesize2
    toolkit::Picture eimage;

    std::int16_t curgroup = 0; // Catalogue indices: of the record shown, or of the line picked
    std::int16_t curnation1 = 0;
    std::int16_t curnation2 = 0;

private:
    static constexpr double picturetop = datestop + toolkit::grid::row + toolkit::grid::gap;
    static constexpr double picturewidth = 8400; // 560 x 420 pixels: the shape of the maps
    static constexpr double pictureheight = 6300;

    void putpicture(const toolkit::Look& look);
    void showown(const EventRec& event);
    void storeown(EventRec& event) const;
    void showimage();
};

// Shows the event at curevent and returns when the screen has closed.
void showevents();

} // namespace brindor
