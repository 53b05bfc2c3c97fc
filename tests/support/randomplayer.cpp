#include "support/randomplayer.h"

#include "base/numbers.h"
#include "editors/recordeditor.h"
#include "frame/services/score.h"
#include "frame/services/settings.h"
#include "questions/question.h"
#include "questions/texts.h"
#include "questions/types.h"
#include "support/scratchfolder.h"
#include "support/timelines.h"
#include "timeline/usedmarks.h"
#include "timeline/writer.h"
#include "toolkit/operations.h"
#include "toolkit/user.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <numeric>
#include <set>
#include <utility>

namespace brindor::tests {

using namespace toolkit;

namespace {

bool usable(const Control& control)
{
    return control.visible && control.enabled &&
           (control.container == nullptr || (control.container->visible && control.container->enabled));
}

bool isquiz(const Screen& screen)
{
    return screen.name == "mchoice" || screen.name == "qsort" || screen.name == "qmatch";
}

} // namespace

RandomPlayer::RandomPlayer(std::uint64_t seed, int questions, double slowest)
    : random_(seed), questions_(questions), slowest_(slowest)
{
}

std::int64_t RandomPlayer::drawn(std::int64_t below)
{
    return static_cast<std::int64_t>(random_() % static_cast<std::uint64_t>(below));
}

bool RandomPlayer::answer()
{
    last_.push_back("answers");
    return drawn(2) == 0;
}

void RandomPlayer::require(bool condition, const std::string& what)
{
    if (!condition) {
        std::string text;
        for (const std::string& step : last_) {
            text += "\n  " + step;
        }
        ADD_FAILURE() << what << " after step " << steps_ << ", question " << asked_ << ":" << text;
    }
}

void RandomPlayer::act(Screen& screen)
{
    if (before_ != 0 && slowest_ > 0) {
        const double cost = 1000.0 * static_cast<double>(std::clock() - before_) / CLOCKS_PER_SEC;
        require(cost <= slowest_, std::to_string(cost) + " ms of CPU");
    }
    ++steps_;
    look(screen);
    if (last_.size() > 12) {
        last_.erase(last_.begin(), last_.begin() + 6);
    }
    before_ = std::clock();
    done() ? leave(screen) : dosomething(screen);
}

void RandomPlayer::leave(Screen& screen)
{
    last_.push_back("leaves " + screen.name);
    userclose(screen);
}

void RandomPlayer::dosomething(Screen& screen)
{
    const std::int64_t what = drawn(40);
    last_.push_back(screen.name + ' ' + std::to_string(what));
    if (what == 0 && screen.name != "main") {
        userclose(screen);
    } else if (what == 1) {
        userescape(screen);
    } else if (what == 2) {
        userreturn(screen);
    } else if (what == 3) {
        userresize(screen, static_cast<double>(drawn(30000)), static_cast<double>(drawn(20000)), index16(drawn(3)));
    } else if (what == 4) {
        userdropnowhere(screen);
    } else if (what == 5 && screen.focus != nullptr) {
        userleave(*screen.focus);
    } else if (what == 6 && screen.name == "bdqedit") {
        viewonly = index16(drawn(2)); // both modes of the editors
    } else {
        std::vector<Control*> usablecontrols;
        for (Control* control : screen.controls) {
            const bool ends = control->name == "cmdquit";
            if (usable(*control) && !ends) {
                usablecontrols.push_back(control);
            }
        }
        if (!usablecontrols.empty()) {
            Control& control =
                *usablecontrols[static_cast<std::size_t>(drawn(static_cast<std::int64_t>(usablecontrols.size())))];
            last_.back() += ' ' + control.name;
            use(control);
        }
    }
}

std::string RandomPlayer::typed()
{
    static const std::array<std::string, 14> texts = {"",      " ",        "0",        "7",          "-44",
                                                      "32767", "-32769",   "1e9",      "ca. 12",     "Person 3",
                                                      "zz",    "\r\n\r\n", "\xff\xfe", "a\r\nb\r\nc"};
    return texts[static_cast<std::size_t>(drawn(static_cast<std::int64_t>(texts.size())))];
}

void RandomPlayer::use(Control& control)
{
    const auto line = [this](std::size_t count) { return index16(drawn(static_cast<std::int64_t>(count) + 2) - 1); };
    switch (control.kind) {
    case Kind::label:
        drawn(2) == 0 ? userclick(static_cast<Label&>(control)) : userdrop(static_cast<Label&>(control));
        break;
    case Kind::button:
        if (static_cast<Button&>(control).bar && drawn(2) == 0) {
            userpress(static_cast<Button&>(control));
        } else {
            userclick(static_cast<Button&>(control));
        }
        break;
    case Kind::optionbutton:
        drawn(2) == 0 ? userclick(static_cast<OptionButton&>(control)) : userpress(static_cast<OptionButton&>(control));
        break;
    case Kind::textbox:
        drawn(3) == 0 ? userfocus(control) : usertype(static_cast<TextBox&>(control), typed());
        break;
    case Kind::list:
        userpick(static_cast<List&>(control), line(static_cast<List&>(control).lines.size()));
        break;
    case Kind::combo:
        if (drawn(3) == 0) {
            usertype(static_cast<Combo&>(control), typed());
        } else {
            userpick(static_cast<Combo&>(control), line(static_cast<Combo&>(control).lines.size()));
        }
        break;
    case Kind::picture:
        userclick(static_cast<Picture&>(control));
        break;
    case Kind::spin:
        userstep(static_cast<Spin&>(control), drawn(2) == 0 ? 1 : -1);
        break;
    case Kind::frame:
        userfocus(control);
        break;
    }
}

void RandomPlayer::look(const Screen& screen)
{
    require(std::all_of(usedmarks.begin(), usedmarks.end(), [](std::int16_t mark) { return mark >= 0; }),
            "a mark below 0");
    if (isquiz(screen)) {
        lookatquestion(screen);
    } else if (screen.name == "showscor") {
        lookatscore();
    } else {
        seen_.clear();
    }
    if (screen.name == "main") {
        lookatlog();
    }
    if (screen.name == "bdqedit") { // a new record that a title bar left open would be asked about, also while browsing
        RecordEditor<PersonFamily>::newentry = 0;
        RecordEditor<EventFamily>::newentry = 0;
    }
    // In browse mode the editors leave the Timeline alone, but for New and Delete where there are no nations.
    const bool editor = screen.name == "PEntry" || screen.name == "eEntry";
    if (!editor || viewonly == 0 || nnations == 0) {
        kept_.clear();
    } else if (const std::string now = timelinetext(); kept_.empty()) {
        kept_ = now;
    } else {
        require(now == kept_, "the Timeline was changed while it was browsed");
    }
}

// Once a question, which is told by the marks that its draw has raised: five different items of the right family, with
// different texts that are not blank.
void RandomPlayer::lookatquestion(const Screen& screen)
{
    const std::int64_t marks = std::accumulate(usedmarks.begin(), usedmarks.end(), std::int64_t{0});
    if (seen_ == screen.name && marks == marks_) {
        return;
    }
    seen_ = screen.name;
    marks_ = marks;
    const std::set<std::int16_t> items(chosen.begin(), chosen.begin() + 5);
    ++asked_;
    worth_ = screen.name == "mchoice" ? 5 : screen.name == "qsort" ? 20 : 25;
    const bool ofpeople = kindof(qtype).of == ItemKind::person;
    std::set<std::string> texts;
    for (const std::int16_t item : items) {
        texts.insert(getpstr(item, qtype));
        require(item >= 0 && item < (ofpeople ? peoplecount() : eventcount()), "an item outside its family");
    }
    require(items.size() == 5 && texts.size() == 5 && *texts.begin() > " ", "the five items are not good");
    if (players[0].asked == 0) {
        right_ = 0;
        possible_ = 0;
    }
}

void RandomPlayer::lookatscore()
{
    if (std::exchange(seen_, "showscor") == "showscor") {
        return;
    }
    const int won = players[0].right - right_;
    require(won >= 0 && won <= worth_, "points that the question does not hold");
    require(players[0].asked - possible_ == worth_, "possible points that the question does not hold");
    require(players[0].right <= players[0].asked, "more right than asked");
    right_ = players[0].right;
    possible_ = players[0].asked;
}

// What a game has added to the log: a header for each question where all is logged, none where only what is wrong is,
// and nothing while it is off.
void RandomPlayer::lookatlog()
{
    std::ifstream log("bdqquiz.log");
    log.seekg(logged_);
    int headers = 0;
    int lines = 0;
    for (std::string line; std::getline(log, line); ++lines) {
        logged_ += static_cast<std::int64_t>(line.size()) + 1;
        for (const char* header : {"Multiple Choice\r", "Match ", "Items to sort by "}) {
            headers += line.starts_with(header) ? 1 : 0;
        }
    }
    require(logstatus != 0 || lines == 0, "a line in a log that is off");
    require(logstatus == 1 ? headers == asked_ - askedbefore_ : headers == 0,
            "headers that the log's level does not allow");
    askedbefore_ = asked_;
}

void RandomPlayer::writetimelines()
{
    setnumbered(40, 40);
    const std::string good = timelinetext();
    writefile("Ancient.bd3", good);
    writefile("Modern.bd3", good.substr(0, good.size() * 2 / 3));

    setnumbered(6, 9); // texts that are equal, blank or long, kinds and indices that are none
    people[1].desc1 = people[0].desc1;
    people[2].name = "";
    people[3].datetype1 = 7;
    people[4].faction = 99;
    events[0].desc1 = std::string(3000, 'x');
    events[1].name = "\xe9\xff";
    events[2].nation1 = -5;
    events[3].date2 = events[2].date1;
    events[4].imagename = "missing.png";
    writefile("Classic.bd3", timelinetext());

    setnumbered(7, 7);
    nations = catalogue({});
    nnations = 0;
    writefile("Medieval.bd3", timelinetext());
}

std::uint64_t seedwanted()
{
    const char* given = std::getenv("BRINDOR_SEED");
    const std::uint64_t seed = given != nullptr ? std::strtoull(given, nullptr, 10) : std::random_device()();
    std::cout << "BRINDOR_SEED=" << seed << '\n';
    return seed;
}

int questionswanted(int otherwise)
{
    const char* given = std::getenv("BRINDOR_QUESTIONS");
    return given != nullptr ? std::atoi(given) : otherwise;
}

} // namespace brindor::tests
