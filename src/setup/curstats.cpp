#include "setup/curstats.h"

#include "base/text.h"
#include "timeline/timeline.h"
#include "toolkit/dress.h"
#include "toolkit/operations.h"

#include <string>

namespace brindor {

using namespace toolkit;

CurStats::CurStats()
{
    const Look look{{192, 255, 224}, {128, 240, 184}, {Face::plain, 11, false}};
    constexpr double linewidth = 5400;

    name = "curStats";
    caption = "Current Timeline Statistics";
    back = look.surface;
    escapecloses = true;
    defaultbutton = &command1;

    const struct {
        Label& label;
        const char* name;
        double top; // in rows; groups of lines stand a little apart
    } lines[] = {{label1, "Label1", 0}, {label2, "Label2", 1.5}, {label3, "Label3", 2.5}, {label5, "Label5", 4},
                 {label6, "Label6", 5}, {label7, "Label7", 6},   {label8, "Label8", 7},   {label4, "Label4", 8.5}};
    for (const auto& line : lines) {
        put(look, *this, line.label, line.name, "",
            {grid::margin, grid::margin + line.top * grid::row, linewidth, grid::row});
    }
    label1.font.bold = true;
    put(look, *this, command1, "Command1", "OK",
        {grid::margin + linewidth - grid::buttonwidth, label4.place.top + grid::row + grid::margin, grid::buttonwidth,
         grid::buttonheight});
    command1.accesskey = 'O';

    load = [this] { open(); };
    command1.click = [this] { closescreen(*this); };
}

void CurStats::open()
{
    fitcontents(*this, grid::margin);
    settext(label1, curfile);
    settext(label2, decimaltext(npeople) + " people");
    settext(label3, decimaltext(nevents) + " events");
    settext(label5, numbertext(nfactions) + " factions");
    settext(label6, numbertext(noccupations) + " occupations");
    settext(label7, numbertext(ngroups) + " groups");
    settext(label8, numbertext(nnations) + " nations");
    settext(label4, "Current date range " + spacednumber(mindate) + " to " + spacednumber(maxdate));
}

void showstatistics()
{
    CurStats screen;
    showmodal(screen);
}

} // namespace brindor
