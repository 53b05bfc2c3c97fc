#include "editors/eentry.h"

#include "base/numbers.h"
#include "base/text.h"
#include "editors/imgdisp.h"
#include "timeline/deletion.h"
#include "toolkit/operations.h"

namespace brindor {

using namespace toolkit;

EEntry::EEntry()
{
    const Look look{{208, 228, 255}, {160, 196, 255}, {Face::plain, 11, false}};
    constexpr double inwidth = besidedates - grid::margin + picturewidth;

    name = "eEntry";
    caption = "Events Entry";
    back = look.surface;

    putfields(look, inwidth);
    const struct {
        Caption caption;
        Combo& combo;
        const char* controlname;
        const char* text;
    } lists[] = {{{grouplabel, "GroupLabel", "Group", captionwidth}, cbogroup, "cboGroup", "Group"},
                 {{nation1label, "Nation1Label", "Nation 1", captionwidth}, cbonation1, "cboNation1", "Nation1"},
                 {{nation2label, "Nation2Label", "Nation 2", captionwidth}, cbonation2, "cboNation2", "Nation2"}};
    double at = datesbottom + grid::margin;
    for (const auto& list : lists) {
        putcaptioned(look, *this, list.caption, list.combo, list.controlname, list.text,
                     {grid::margin, at, dateswidth, grid::row});
        at += grid::row + grid::gap;
    }
    putpicture(look);
    putbuttons(look, picturetop + pictureheight + grid::margin, inwidth);

    eimgname.change = [this] { datachanged = -1; };
    eimage.click = [this] { viewimage(eimgname.text); };
    begin({.newtitle = "New event",
           .deleteitem = deleteevent,
           .dates = &eventdates,
           // The buttons are locked with the nations: without a nation they stay.
           .locked = [] { return viewonly == 1 && nnations > 0; },
           .lists = {{cbogroup, curgroup, groups, ngroups, &EventRec::group},
                     {cbonation1, curnation1, nations, nnations, &EventRec::nation1},
                     {cbonation2, curnation2, nations, nnations, &EventRec::nation2}},
           .showown = [this](const EventRec& event) { showown(event); },
           .storeown = [this](EventRec& event) { storeown(event); }});
}

void EEntry::putpicture(const Look& look)
{
    constexpr double sizelabelwidth = 600;
    constexpr double sizewidth = 720;
    constexpr double end = besidedates + picturewidth;
    constexpr double sizes = end - 2 * sizewidth - grid::gap;
    putcaptioned(look, *this, {picturelabel, "PictureLabel", "Picture", 900}, eimgname, "eImgName", " ",
                 {besidedates, datestop, sizes - sizelabelwidth - grid::gap - besidedates, grid::row});
    putcaptioned(look, *this, {label3, "Label3", "Size", sizelabelwidth}, text2, "Text2", " ",
                 {sizes - sizelabelwidth, datestop, sizelabelwidth + sizewidth, grid::row});
    text2.says = "Picture width";
    put(look, *this, text3, "Text3", " ", {end - sizewidth, datestop, sizewidth, grid::row});
    text3.says = "Picture height";
    put(look, *this, eimage, "Eimage", "", {besidedates, picturetop, picturewidth, pictureheight});
    eimage.says = "Picture of the event";
    eimage.tooltip = "Click to see the picture in a window of its own";
}

void EEntry::showown(const EventRec& event)
{
    settext(eimgname, event.imagename);
    settext(text2, numbertext(event.imagesize1));
    settext(text3, numbertext(event.imagesize2));
    showimage();
}

void EEntry::storeown(EventRec& event) const
{
    event.imagename = eimgname.text;
    event.imagesize1 = roundtoint16(textvalue(text2.text));
    event.imagesize2 = roundtoint16(textvalue(text3.text));
}

// A picture that cannot be loaded leaves the former one in its place and a blank in the name field.
void EEntry::showimage()
{
    if (eimgname.text <= " ") {
        for (Control* control : std::initializer_list<Control*>{&text2, &text3, &eimage, &label3}) {
            hide(*control);
        }
        return;
    }
    for (Control* control : std::initializer_list<Control*>{&label3, &text2, &text3}) {
        show(*control);
    }
    if (loadinto(eimage, eimgname.text)) {
        show(eimage);
    } else {
        settext(eimgname, " ");
    }
}

void showevents()
{
    EEntry screen;
    showmodal(screen);
}

} // namespace brindor
