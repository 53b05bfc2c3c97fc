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
#include "toolkit/dress.h"
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

} // namespace

MainScreen::MainScreen(std::string programfolder) : programfolder_(std::move(programfolder))
{
    name = "main";
    width = screenwidth;
    height = screenheight;
    defaultbutton = &command1;

    const Look look{{236, 220, 176}, {245, 222, 160}, {Face::plain, 12, true}};
    back = look.surface;
    const struct {
        Label& label;
        const char* labelname;
        const char* text;
        double points;
    } lines[] = {{label1, "Label1", "", 26},
                 {label2, "Label2", "", 12},
                 {label3, "Label3", "Written by the project's contributors", 12},
                 {label4, "Label4", "Copyright (C) the project's contributors", 12}};
    for (const auto& line : lines) {
        put({back, {}, {Face::heading, line.points, true}, {}, {64, 32, 16}}, *this, line.label, line.labelname,
            line.text, {});
        line.label.opaque = false;
        line.label.align = Align::centre;
    }
    const struct {
        Button& button;
        const char* controlname;
        const char* text;
        const char* tip;
        char accesskey;
    } buttons[] = {{command1, "Command1", "Play", "Play the game", 'P'},
                   {cmdsetup, "cmdsetup", "Setup", "Conditions for the game", 'S'},
                   {command3, "Command3", "About", "", 'A'},
                   {cmdcatalog, "cmdCatalog", "", "", 'C'},
                   {cmdquit, "cmdquit", "Quit", "", 'Q'}};
    for (const auto& b : buttons) {
        put(look, *this, b.button, b.controlname, b.text, {});
        b.button.tooltip = b.tip;
        b.button.accesskey = b.accesskey;
    }

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
