#include "editors/recordfields.h"

#include "base/numbers.h"
#include "base/text.h"
#include "toolkit/operations.h"

#include <algorithm>
#include <string>

namespace brindor {

using namespace toolkit;

namespace {

constexpr std::size_t kinds = 3; // options in a frame

void selectkind(OptionButton* options, std::int16_t kind)
{
    if (kind >= known && kind <= reign) {
        select(options[kind]);
    }
}

// Leaves the kind as it is where no option is selected.
void takekind(const OptionButton* options, std::int16_t& kind)
{
    for (std::int16_t i = known; i <= reign; ++i) {
        if (options[i].selected) {
            kind = i;
        }
    }
}

std::int16_t number(const TextBox& box)
{
    return roundtoint16(textvalue(box.text));
}

} // namespace

void RecordFields::putfields(const Look& look, double inwidth)
{
    constexpr double desctop = grid::margin + grid::row + grid::gap;
    putcaptioned(look, *this, {namelabel, "NameLabel", "Name", captionwidth}, combo1, "Combo1", " ",
                 {grid::margin, grid::margin, inwidth, grid::row});
    putcaptioned(look, *this, {desclabel, "DescLabel", "Description", captionwidth}, desc, "desc", " ",
                 {grid::margin, desctop, inwidth, datestop - grid::margin - desctop});
    desc.multiline = true;

    constexpr const char* kindtexts[kinds] = {"Known", "Approx", "Reign"};
    constexpr double half = (dateswidth - grid::gap) / 2;
    constexpr double datelabel = 900;
    const struct {
        Label& label;
        const char* labelname;
        const char* text;
        TextBox& box;
        const char* boxname;
        Frame& frame;
        const char* framename;
    } dates[] = {{label1, "Label1", "Date 1", date1, "date1", frame1, "Frame1"},
                 {label2, "Label2", "Date 2", date2, "date2", frame2, "Frame2"}};
    std::size_t first = 0;
    double at = grid::margin;
    for (const auto& date : dates) {
        putcaptioned(look, *this, {date.label, date.labelname, date.text, datelabel}, date.box, date.boxname, " ",
                     {at, datestop, half, grid::row});
        put(look, *this, date.frame, date.framename, "Type",
            {at, datestop + grid::row + grid::gap, half, optionsheight(kinds)});
        date.frame.border = true;
        date.frame.says = std::string("Type of ") + date.text;
        for (std::size_t i = 0; i < kinds; ++i) {
            put(look, date.frame, option[first + i], "Option" + std::to_string(first + i + 1), kindtexts[i],
                optionplace(static_cast<std::int64_t>(i), half));
        }
        first += kinds;
        at += half + grid::gap;
    }
}

void RecordFields::putbuttons(const Look& look, double above, double inwidth)
{
    const struct {
        Button& button;
        const char* controlname;
        const char* text;
        char accesskey;
    } buttons[] = {{cmdprev, "cmdPrev", "Prev", 'P'},
                   {cmdnext, "cmdNext", "Next", 'N'},
                   {cmdnew, "cmdNew", "New", 'w'},
                   {cmddelete, "cmdDelete", "Delete", 'D'},
                   {cmdok, "cmdOK", "OK", 'O'}};
    double from = grid::margin;
    for (const auto& b : buttons) {
        put(look, *this, b.button, b.controlname, b.text, {from, above, grid::buttonwidth, grid::buttonheight});
        b.button.accesskey = b.accesskey;
        from += grid::buttonwidth + grid::gap;
    }
    cmdok.place.left = grid::margin + inwidth - grid::buttonwidth;
}

void RecordFields::watchfields(const DateRules& rules)
{
    const auto changed = [this] { datachanged = -1; };
    for (TextBox* box : {&date1, &date2, &desc}) {
        box->change = changed;
    }
    for (OptionButton& button : option) {
        button.click = changed;
    }
    date1.leave = [this, &rules] { settext(date1, rules.date1(date1.text)); };
    date2.leave = [this, &rules] { settext(date2, rules.date2(date1.text, date2.text)); };
}

void RecordFields::showfields(const ItemRec& item)
{
    settext(combo1, item.name);
    settext(date1, numbertext(item.date1));
    settext(date2, numbertext(item.date2));
    olddate1 = item.date1;
    settext(desc, item.desc1 + (item.desc2.empty() ? "" : std::string(crlf) + item.desc2));
    selectkind(&option[0], item.datetype1);
    selectkind(&option[kinds], item.datetype2);
}

void RecordFields::storefields(ItemRec& item) const
{
    item.name = combo1.text;
    item.date1 = number(date1);
    item.date2 = number(date2);
    takekind(&option[0], item.datetype1);
    takekind(&option[kinds], item.datetype2);
    const std::size_t end = desc.text.find('\r');
    item.desc1 = desc.text.substr(0, end);
    item.desc2 = end == std::string::npos ? " " : desc.text.substr(std::min(end + crlf.size(), desc.text.size()));
}

} // namespace brindor
