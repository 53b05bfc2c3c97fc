#include "frame/mainscreen.h"

#include "base/files.h"
#include "base/program.h"
#include "base/random.h"
#include "editors/bdqedit.h"
#include "frame/game.h"
#include "frame/services/failures.h"
#include "frame/services/log.h"
#include "frame/services/placement.h"
#include "frame/services/settings.h"
#include "questions/question.h"
#include "setup/curstats.h"
#include "setup/setup.h"
#include "timeline/reader.h"
#include "timeline/timeline.h"
#include "toolkit/operations.h"

#include <array>
#include <chrono>
#include <utility>

namespace brindor {

using namespace toolkit;

namespace {

constexpr double screenwidth = 12000;
constexpr double screenheight = 8400;
constexpr double margin = 240;
constexpr double gap = 120;
constexpr double buttonheight = 540;
constexpr double buttonwidth = 2160;

constexpr const char* catalogtext = "bdqord.txt";

void dresslabel(Label& label, std::string text, double points, bool bold)
{
    label.text = std::move(text);
    label.font = {"Arial", points, bold};
    label.fore = {64, 32, 16};
    label.opaque = false;
    label.align = Align::centre;
}

void dressbutton(Button& button, std::string text, std::string tip, char accesskey)
{
    button.text = std::move(text);
    button.tooltip = std::move(tip);
    button.accesskey = accesskey;
    button.font = {"MS Sans Serif", 12, true};
    button.back = {245, 222, 160};
}

} // namespace

MainScreen::MainScreen(std::string programfolder) : programfolder_(std::move(programfolder))
{
    name = "main";
    back = {236, 220, 176};
    width = screenwidth;
    height = screenheight;
    defaultbutton = &command1;

    add(*this, label1, "Label1");
    dresslabel(label1, "", 26, true);
    add(*this, label2, "Label2");
    dresslabel(label2, "", 12, true);
    add(*this, label3, "Label3");
    dresslabel(label3, "Written by the project's contributors", 12, true);
    add(*this, label4, "Label4");
    dresslabel(label4, "Copyright (C) the project's contributors", 12, true);
    add(*this, command1, "Command1");
    dressbutton(command1, "Play", "Play the game", 'P');
    add(*this, cmdsetup, "cmdsetup");
    dressbutton(cmdsetup, "Setup", "Conditions for the game", 'S');
    add(*this, command3, "Command3");
    dressbutton(command3, "About", "", 'A');
    add(*this, cmdcatalog, "cmdCatalog");
    dressbutton(cmdcatalog, "", "", 'C');
    add(*this, cmdquit, "cmdquit");
    dressbutton(cmdquit, "Quit", "", 'Q');

    load = [this] { start(); };
    resize = [this] { arrange(); };
    unload = [] { writesettings(); };
    command1.click = [] { playgame(); };
    cmdsetup.click = [] { showsetup([] { showchooser([] { showstatistics(); }); }); };
    command3.click = [this] {
        show(label3);
        show(label4);
    };
    cmdcatalog.click = [] { startviewer(catalogtext); };
    cmdquit.click = [this] { closescreen(*this); };
}

// The order matters: the settings choose the period and the picture, the tables must stand before the load, and the
// log must be emptied before anything is logged.
void MainScreen::start()
{
    forgetfailures();
    centerform(*this);
    setcaption(*this, std::string(titletext));
    seedrandom(static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
    if (const Result<Done> entered = enterdirectory(programfolder_); !entered) {
        messagebox("The program's folder " + programfolder_ + " cannot be entered: " + entered.reason +
                   ". Check that it exists and may be read.");
    }
    readsettings();
    settext(cmdcatalog, "Catalog");
    settooltip(cmdcatalog, "View Quorvel Software Catalog");
    filltables();
    viewonly = 1;
    loadbackdrop();
    settext(label1, std::string(titletext));
    settext(label2, "Version " + std::string(versiontext));
    hide(label3);
    hide(label4);
    resetlog();
    loadperiod();
}

// Without its picture the screen keeps its plain background.
void MainScreen::loadbackdrop()
{
    setbackdrop(*this, loadpicture(titlepicture).picture);
}

// The title stays in the upper part, the buttons in a row at the bottom (in a column where the window is too narrow
// for the row).
void MainScreen::arrange()
{
    const Size frame = framesize();
    const double inwidth = width - frame.width;
    const double inheight = height - frame.height;
    const double textwidth = inwidth - 2 * margin;
    place(label1, {margin, inheight * 0.07, textwidth, 780});
    place(label2, {margin, inheight * 0.07 + 780, textwidth, 420});
    place(label3, {margin, inheight * 0.8, textwidth, 360});
    place(label4, {margin, inheight * 0.8 + 360, textwidth, 360});

    const std::array<Button*, 5> buttons = {&command1, &cmdsetup, &command3, &cmdcatalog, &cmdquit};
    const double count = static_cast<double>(buttons.size());
    const double rowwidth = count * buttonwidth + (count - 1) * gap;
    const bool row = rowwidth + 2 * margin <= inwidth;
    double x = row ? (inwidth - rowwidth) / 2 : (inwidth - buttonwidth) / 2;
    double y = inheight - margin - (row ? buttonheight : count * buttonheight + (count - 1) * gap);
    for (Button* button : buttons) {
        place(*button, {x, y, buttonwidth, buttonheight});
        x += row ? buttonwidth + gap : 0;
        y += row ? 0 : buttonheight + gap;
    }
}

} // namespace brindor
