#include "setup/setup.h"

#include "base/numbers.h"
#include "base/program.h"
#include "base/text.h"
#include "frame/services/placement.h"
#include "frame/services/settings.h"
#include "questions/question.h"
#include "toolkit/layout.h"
#include "toolkit/operations.h"

#include <string>
#include <utility>

namespace brindor {

using namespace toolkit;

namespace {

const Look look{{255, 255, 192}, {255, 224, 128}, {"MS Sans Serif", 11, false}};
constexpr double editfontsize = 8;

constexpr double listwidth = 4200;
constexpr double listheight = 60 + lasttype * 480.0; // all kinds of question, one a line
constexpr double sidewidth = 4560;
constexpr double fieldwidth = 600;
constexpr double spinwidth = 360;

struct LogOption {
    const char* text;
    const char* tooltip;
};
constexpr std::array<LogOption, 3> logoptions = {{{"Off", "No logging takes place"},
                                                  {"All", "All questions and incorrect answers are sent to log file"},
                                                  {"Only incorrect", "Only wrong answers are sent to log file"}}};

std::string limited(const std::string& text, double low, double high)
{
    return numbertext(clampvalue(roundtoint16(textvalue(text)), low, high));
}

// A number of questions as typed, put into its range; a text without a number counts as 1.
std::int16_t questions(const std::string& text)
{
    return clampvalue(roundtoint16(textvalue(text)), 1, mostquestions);
}

} // namespace

Setup::Setup(std::function<void()> showchooser)
{
    name = "setup";
    back = look.surface;
    escapecloses = true;
    defaultbutton = &cmdok;
    putcontrols();

    load = [this] { open(); };
    unload = [this] { keep(); };
    nquestion.change = [this] { limittyped(); };
    nquestion.leave = [this] { settext(nquestion, numbertext(questions(nquestion.text))); };
    tmindif.change = [this] { settext(tmindif, limited(tmindif.text, 1, textvalue(tmaxdif.text))); };
    tmaxdif.change = [this] { settext(tmaxdif, limited(tmaxdif.text, textvalue(tmindif.text), highestdifficulty)); };
    for (std::size_t i = 0; i < option1.size(); ++i) {
        option1[i].click = [i] { logstatus = index16(static_cast<std::int64_t>(i)); };
    }
    cmdedit.click = std::move(showchooser);
    cmdok.click = [this] { closescreen(*this); };
}

void Setup::putcontrols()
{
    const double above = grid::margin;
    put(look, *this, label1, "Label1", "Kinds of question", {grid::margin, above, listwidth, grid::row});
    put(look, *this, list1, "List1", "", {grid::margin, above + grid::row, listwidth, listheight});
    list1.multiselect = true;
    list1.tooltip = "Colored items are selected";
    list1.says = label1.text;

    const double side = grid::margin + listwidth + grid::margin;
    putcaptioned(look, *this, {label4, "Label4", "Number of questions per game", sidewidth - fieldwidth - spinwidth},
                 nquestion, "nquestion", "5", {side, above, sidewidth - spinwidth, grid::row});
    put(look, *this, updown1, "UpDown1", "", {side + sidewidth - spinwidth, above, spinwidth, grid::row});
    updown1.buddy = &nquestion;

    const double logtop = above + grid::row + grid::margin;
    put(look, *this, frame1, "Frame1", "Log File Status",
        {side, logtop, sidewidth, optionsheight(static_cast<std::int64_t>(option1.size()))});
    frame1.border = true;
    for (std::size_t i = 0; i < option1.size(); ++i) {
        const auto at = static_cast<std::int64_t>(i);
        put(look, frame1, option1[i], indexed("Option1", at), logoptions[i].text, optionplace(at, sidewidth));
        option1[i].tooltip = logoptions[i].tooltip;
    }

    put(look, *this, framediff, "frameDiff", "Difficulty",
        {side, logtop + frame1.place.height + grid::margin, sidewidth, optionsheight(2)});
    framediff.border = true;
    const auto putdifficulty = [this](const char* labelname, const char* text, Label& label, const char* boxname,
                                      TextBox& box, const char* spinname, Spin& spin, std::int64_t at) {
        const Place line = optionplace(at, sidewidth);
        const double fields = line.width - spinwidth;
        putcaptioned(look, framediff, {label, labelname, text, fields - fieldwidth}, box, boxname, "1",
                     {line.left, line.top, fields, line.height});
        put(look, framediff, spin, spinname, "", {line.left + fields, line.top, spinwidth, line.height});
        spin.buddy = &box;
    };
    putdifficulty("Label5", "Minimum", label5, "tmindif", tmindif, "UpDown2", updown2, 0);
    putdifficulty("Label6", "Maximum", label6, "tmaxdif", tmaxdif, "UpDown3", updown3, 1);

    const double bottom = above + grid::row + listheight + grid::margin;
    put(look, *this, cmdedit, "cmdEdit", "", {grid::margin, bottom, 1.5 * grid::buttonwidth, grid::buttonheight});
    cmdedit.tooltip = "Change item data";
    cmdedit.accesskey = 'V';
    put(look, *this, cmdok, "cmdok", "OK",
        {side + sidewidth - grid::buttonwidth, bottom, grid::buttonwidth, grid::buttonheight});
    cmdok.tooltip = "Click here to continue";
    cmdok.accesskey = 'O';
}

void Setup::open()
{
    fitcontents(*this, grid::margin);
    centerform(*this);
    setcaption(*this, std::string(titletext) + " Setup");
    if (logstatus >= 0 && static_cast<std::size_t>(logstatus) < option1.size()) {
        select(option1[static_cast<std::size_t>(logstatus)]);
    }
    hide(framediff);
    settext(cmdedit, "View/Select");
    setfontsize(cmdedit, editfontsize);
    // tmaxdif still holds its initial 1 when it limits tmindif: every opening sets the lowest difficulty to 1.
    settext(nquestion, numbertext(brindor::nquestion));
    settext(tmindif, mindif);
    settext(tmaxdif, numbertext(maxdif));
    for (std::int16_t type = 1; type <= lasttype; ++type) {
        const auto slot = static_cast<std::size_t>(type);
        additem(list1, typenames[slot]);
        selectline(list1, index16(type - 1), typeenabled[slot] != 0);
    }
}

void Setup::keep()
{
    brindor::nquestion = questions(nquestion.text);
    mindif = tmindif.text;
    maxdif = roundtoint16(textvalue(tmaxdif.text));
    for (std::size_t line = 0; line < list1.selected.size(); ++line) {
        typeenabled[line + 1] = list1.selected[line] ? -1 : 0;
    }
    writesettings();
}

// A number out of range is corrected while it is typed. What is not yet a number may still become one.
void Setup::limittyped()
{
    if (wholenumber(nquestion.text)) {
        settext(nquestion, numbertext(questions(nquestion.text)));
    }
}

void showsetup(const std::function<void()>& showchooser)
{
    Setup screen(showchooser);
    showmodal(screen);
}

} // namespace brindor
