#include "editors/pentry.h"

#include "timeline/deletion.h"
#include "toolkit/operations.h"

namespace brindor {

using namespace toolkit;

PEntry::PEntry()
{
    const Look look{{255, 228, 204}, {255, 196, 144}, {Face::plain, 11, false}};
    constexpr double listwidth = dateswidth;
    constexpr double inwidth = besidedates - grid::margin + listwidth;
    constexpr Place line{besidedates, datestop, listwidth, grid::row};

    name = "PEntry";
    caption = "People Entry";
    back = look.surface;

    putfields(look, inwidth);
    putcaptioned(look, *this, {factionlabel, "FactionLabel", "Faction", captionwidth}, cbofaction, "cboFaction",
                 "Faction", line);
    putcaptioned(look, *this, {occupationlabel, "OccupationLabel", "Occupation", captionwidth}, cbooccupation,
                 "cboOccupation", "Occupation", {line.left, line.top + grid::row + grid::gap, line.width, line.height});
    putbuttons(look, datesbottom + grid::margin, inwidth);

    begin({.newtitle = "New person",
           .deleteitem = deleteperson,
           .dates = &persondates,
           .locked = [] { return viewonly == 1; },
           .lists = {{cbofaction, curfaction, factions, nfactions, &PersonRec::faction},
                     {cbooccupation, curoccupation, occupations, noccupations, &PersonRec::occupation}},
           .showown = {},
           .storeown = {}});
}

void showpeople()
{
    PEntry screen;
    showmodal(screen);
}

} // namespace brindor
