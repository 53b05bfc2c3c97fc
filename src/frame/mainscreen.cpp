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

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace brindor {

using namespace toolkit;

namespace {

// In units of which the picture is 960 wide, as the title picture is drawn: the screen is laid out in them, so that all
// of it grows and shrinks like one picture.
constexpr double picturewidth = 960;
constexpr double pictureheight = 640;
constexpr Place titleplace{190, 44, 580, 64}; // in the cartouche
constexpr Place versionplace{190, 108, 580, 30};
constexpr Place creditplace{190, 514, 580, 24}; // below the globes
constexpr double buttontop = 566;
constexpr double buttonheight = 42;
constexpr double buttonwidth = 156;
constexpr double buttongap = 12;
constexpr double titlepoints = 2.08; // by unit: 26 points as the screen is made
constexpr double wordpoints = 0.96;

// Twips by unit where the window is as large as it is made.
constexpr double madeunit = 12.5;

constexpr const char* catalogtext = "bdqord.txt";

} // namespace

MainScreen::MainScreen(std::string programfolder) : programfolder_(std::move(programfolder))
{
    name = "main";
    width = picturewidth * madeunit;
    height = pictureheight * madeunit;
    defaultbutton = &command1;

    const Look look{{236, 220, 176}, {245, 222, 160}, {Face::plain, 12, true}};
    back = look.surface;
    const struct {
        Label& label;
        const char* labelname;
        const char* text;
    } lines[] = {{label1, "Label1", ""},
                 {label2, "Label2", ""},
                 {label3, "Label3", "Written by the project's contributors"},
                 {label4, "Label4", "Copyright (C) the project's contributors"}};
    for (const auto& line : lines) {
        put({back, {}, {Face::heading, 12, true}, {}, {64, 32, 16}}, *this, line.label, line.labelname, line.text, {});
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

// The picture stands whole in the middle of the window, and everything in its place on the picture.
void MainScreen::arrange()
{
    const Size frame = framesize();
    const Size inside{width - frame.width, height - frame.height};
    const double unit = std::min(inside.width / picturewidth, inside.height / pictureheight);
    const double picleft = (inside.width - picturewidth * unit) / 2;
    const double pictop = (inside.height - pictureheight * unit) / 2;
    const auto putat = [&](Control& control, const Place& at, double points) {
        place(control, {picleft + at.left * unit, pictop + at.top * unit, at.width * unit, at.height * unit});
        setfontsize(control, points * unit);
    };
    putat(label1, titleplace, titlepoints);
    putat(label2, versionplace, wordpoints);
    Place credit = creditplace;
    for (Label* label : {&label3, &label4}) {
        putat(*label, credit, wordpoints);
        credit.top += credit.height;
    }
    const std::array<Button*, 5> buttons = {&command1, &cmdsetup, &command3, &cmdcatalog, &cmdquit};
    const double count = static_cast<double>(buttons.size());
    double x = (picturewidth - count * buttonwidth - (count - 1) * buttongap) / 2;
    for (Button* button : buttons) {
        putat(*button, {x, buttontop, buttonwidth, buttonheight}, wordpoints);
        x += buttonwidth + buttongap;
    }
}

} // namespace brindor
