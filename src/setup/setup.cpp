#include "setup/setup.h"

#include "base/numbers.h"
#include "base/program.h"
#include "base/text.h"
#include "frame/services/placement.h"
#include "frame/services/settings.h"
#include "questions/question.h"
#include "toolkit/dress.h"
#include "toolkit/operations.h"

#include <string>
#include <utility>

namespace brindor {

using namespace toolkit;

namespace {

const Look look{{255, 255, 192}, {255, 224, 128}, {Face::plain, 11, false}};
constexpr double editfontsize = 8;

constexpr double inwidth = 8640;
constexpr double listheight = 120 + (lasttype + 1) / 2 * 480.0; // all kinds of question, in two columns
constexpr double loggingwidth = 4920;
constexpr double fieldwidth = 600;
constexpr double spinwidth = 720; // the two halves side by side

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
    tmindif.change = [this] { settext(tmindif, limited(tmindif.text, lowestdifficulty, textvalue(tmaxdif.text))); };
    tmaxdif.change = [this] { settext(tmaxdif, limited(tmaxdif.text, textvalue(tmindif.text), highestdifficulty)); };
    for (std::size_t i = 0; i < option1.size(); ++i) {
        option1[i].click = [i] { logstatus = index16(static_cast<std::int64_t>(i)); };
    }
    cmdedit.click = std::move(showchooser);
    cmdok.click = [this] { closescreen(*this); };
}

void Setup::putcontrols()
{
    double at = grid::margin;
    const auto putnumber = [this](auto& holder, const Caption& label, TextBox& box, const char* boxname,
                                  std::int16_t number, Spin& spin, const char* spinname, const Place& line) {
        const double fields = label.width + fieldwidth;
        putcaptioned(look, holder, label, box, boxname, numbertext(number), {line.left, line.top, fields, line.height});
        put(look, holder, spin, spinname, "", {line.left + fields, line.top, spinwidth, line.height});
        spin.buddy = &box;
        spin.says = box.says;
    };
    putnumber(*this, {label4, "Label4", "Number of questions per game", 3360}, nquestion, "nquestion", usualquestions,
              updown1, "UpDown1", {grid::margin, at, inwidth, grid::row});

    at += grid::row + grid::margin;
    put(look, *this, label1, "Label1", "Kinds of question", {grid::margin, at, inwidth, grid::row});
    put(look, *this, list1, "List1", "", {grid::margin, at + grid::row, inwidth, listheight});
    list1.multiselect = true;
    list1.columns = 2;
    list1.tooltip = "Colored items are selected";
    list1.says = label1.text;
    label1.names = &list1;

    at += grid::row + listheight + grid::margin;
    const double height1 = optionsheight(static_cast<std::int64_t>(option1.size()));
    put(look, *this, frame1, "Frame1", "Log File Status", {grid::margin, at, loggingwidth, height1});
    frame1.border = true;
    for (std::size_t i = 0; i < option1.size(); ++i) {
        const auto index = static_cast<std::int64_t>(i);
        put(look, frame1, option1[i], indexed("Option1", index), logoptions[i].text, optionplace(index, loggingwidth));
        option1[i].tooltip = logoptions[i].tooltip;
    }

    const double side = grid::margin + loggingwidth + grid::margin;
    const double sidewidth = inwidth - loggingwidth - grid::margin;
    put(look, *this, framediff, "frameDiff", "Difficulty", {side, at, sidewidth, optionsheight(2)});
    framediff.border = true;
    const Place first = optionplace(0, sidewidth);
    const double captionwidth = first.width - fieldwidth - spinwidth;
    putnumber(framediff, {label5, "Label5", "Minimum", captionwidth}, tmindif, "tmindif", lowestdifficulty, updown2,
              "UpDown2", first);
    putnumber(framediff, {label6, "Label6", "Maximum", captionwidth}, tmaxdif, "tmaxdif", lowestdifficulty, updown3,
              "UpDown3", optionplace(1, sidewidth));

    const double bottom = at + height1 - grid::buttonheight;
    const double right = grid::margin + inwidth;
    put(look, *this, cmdedit, "cmdEdit", "",
        {right - 2 * grid::buttonwidth - grid::gap, bottom, grid::buttonwidth, grid::buttonheight});
    cmdedit.tooltip = "Change item data";
    cmdedit.accesskey = 'V';
    put(look, *this, cmdok, "cmdok", "OK", {right - grid::buttonwidth, bottom, grid::buttonwidth, grid::buttonheight});
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
