#include "gallery.h"

#include "base/random.h"
#include "editors/bdqedit.h"
#include "editors/eentry.h"
#include "editors/imgdisp.h"
#include "editors/pentry.h"
#include "frame/mainscreen.h"
#include "frame/services/placement.h"
#include "questions/question.h"
#include "quiz/mchoice.h"
#include "quiz/qmatch.h"
#include "quiz/qsort.h"
#include "setup/curstats.h"
#include "setup/setup.h"

#include <QScrollArea>

namespace brindor::tests {

namespace {

QPoint middleof(QWidget& window, const std::string& control)
{
    QWidget& widget = widgetin(window, control);
    if (auto* area = window.findChild<QScrollArea*>()) {
        area->ensureWidgetVisible(&widget);
    }
    return widget.mapTo(&window, widget.rect().center());
}

// Presses the mouse on one control and lets go over another.
void drag(QWidget& window, const std::string& from, const std::string& to, bool letgo = true)
{
    mouse(window, middleof(window, from), middleof(window, to), letgo);
}

std::function<void(QWidget&)> clicks(const std::string& control)
{
    return [control](QWidget& window) { drag(window, control, control); };
}

std::function<void()> question(std::int16_t type, void (*play)())
{
    return [type, play] {
        seedrandom(7);
        qtype = type;
        play();
    };
}

} // namespace

std::vector<Exhibit> gallery()
{
    const auto main = [] {
        MainScreen screen(std::filesystem::current_path().string());
        toolkit::showmodal(screen);
    };
    const auto events = [] {
        curevent = static_cast<std::int16_t>(nevents / 3);
        showevents();
    };
    const auto drops = [](QWidget& window) {
        drag(window, "Btn1(4)", "Label2(4)");
        drag(window, "Btn1(0)", "Label2(1)");
    };
    const auto dragging = [](QWidget& window) {
        drag(window, "Btn1(3)", "Label2(3)");
        drag(window, "Btn1(1)", "Label2(2)", false);
    };
    return {
        {"main", main, {{"main", clicks("Command3")}}, "main"},
        {"mchoice", question(1, playmchoice), {}, "mchoice"},
        {"mchoice events", question(8, playmchoice), {}, "mchoice"},
        {"mchoice help", question(1, playmchoice), {{"mchoice", clicks("cmdhelp")}}, "message"},
        {"showscor of mchoice", question(2, playmchoice), {{"mchoice", clicks("choice(4)")}}, "showscor"},
        {"qsort", question(13, playqsort), {}, "qsort"},
        {"showscor of qsort", question(13, playqsort), {{"qsort", clicks("Command1")}}, "showscor"},
        {"qmatch", question(3, playqmatch), {}, "qmatch"},
        {"qmatch events", question(9, playqmatch), {{"qmatch", drops}}, "qmatch"},
        {"qmatch dragging", question(4, playqmatch), {{"qmatch", dragging}}, "qmatch"},
        {"setup", [] { showsetup([] {}); }, {}, "setup"},
        {"bdqedit", [] { showchooser([] {}); }, {}, "bdqedit"},
        {"curStats", [] { showstatistics(); }, {}, "curStats"},
        {"PEntry", [] { showpeople(); }, {}, "PEntry"},
        {"eEntry", events, {}, "eEntry"},
        {"ImgDisp", events, {{"eEntry", clicks("Eimage")}}, "ImgDisp"},
        {"closing", [] { toolkit::announce("You scored 35 out of 50 (70%)"); }, {}, "message"},
        {"question", [] { toolkit::askyesno("Store changed data?", "Data changed"); }, {}, "message"},
    };
}

void look(const Exhibit& exhibit, const std::function<void(QWidget& window)>& with)
{
    placements = firstplacements;
    std::vector<Step> steps = exhibit.way;
    steps.push_back({exhibit.window, with});
    walk(exhibit.open, std::move(steps));
}

} // namespace brindor::tests
