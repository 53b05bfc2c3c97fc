#include "support/randomplayer.h"

#include "base/numbers.h"
#include "editors/recordeditor.h"
#include "questions/texts.h"
#include "questions/types.h"
#include "support/gametest.h"
#include "timeline/usedmarks.h"
#include "timeline/writer.h"

#include <iostream>
#include <numeric>
#include <set>

namespace brindor::tests {

using namespace toolkit;

RandomPlayer::RandomPlayer(int questions, double slowest) : clicks(click), slowest_(slowest)
{
    const char* seed = std::getenv("BRINDOR_SEED");
    const char* wanted = std::getenv("BRINDOR_QUESTIONS");
    const std::uint64_t drawnseed = seed != nullptr ? std::strtoull(seed, nullptr, 10) : std::random_device()();
    std::cout << "BRINDOR_SEED=" << drawnseed << std::endl; // before anything can stand still
    random_.seed(drawnseed);
    questions_ = wanted != nullptr ? std::atoi(wanted) : questions;
}

std::int64_t RandomPlayer::drawn(std::int64_t below)
{
    return static_cast<std::int64_t>(random_() % static_cast<std::uint64_t>(below));
}

bool RandomPlayer::answer()
{
    last_ += ", answers";
    return drawn(2) == 0;
}

void RandomPlayer::require(bool condition, const std::string& what)
{
    if (!condition) {
        ADD_FAILURE() << what << " after step " << steps_ << ", question " << asked_ << ", with" << last_;
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
    last_.erase(0, last_.size() > 600 ? 300 : 0);
    before_ = std::clock();
    const std::int64_t what = done() ? 0 : drawn(40);
    last_ += ", " + screen.name + ' ' + std::to_string(what);
    if (what == 0 && (done() || screen.name != "main")) {
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
    } else if (Control& control = *drawnof(screen.controls); control.name != "cmdquit") {
        last_ += ' ' + control.name;
        use(control);
    }
}

// What its kind knows, also where it is hidden or disabled.
void RandomPlayer::use(Control& control)
{
    static const std::vector<std::string> texts = {"",      " ",        "0",        "7",          "-44",
                                                   "32767", "-32769",   "1e9",      "ca. 12",     "Person 3",
                                                   "zz",    "\r\n\r\n", "\xff\xfe", "a\r\nb\r\nc"};
    const bool other = drawn(2) == 0;
    if (control.kind == Kind::spin) {
        userstep(static_cast<Spin&>(control), other ? 1 : -1);
    } else if (control.kind == Kind::label && other) {
        userdrop(static_cast<Label&>(control));
    } else if (control.kind == Kind::list || (control.kind == Kind::combo && other)) {
        const bool list = control.kind == Kind::list;
        const auto& lines = list ? static_cast<List&>(control).lines : static_cast<Combo&>(control).lines;
        pick(control, index16(drawn(static_cast<std::int64_t>(lines.size()) + 2) - 1));
    } else if (other || !(type(control, drawnof(texts)) || press(control))) {
        clicks(control);
    }
}

void RandomPlayer::look(const Screen& screen)
{
    require(std::all_of(usedmarks.begin(), usedmarks.end(), [](std::int16_t mark) { return mark >= 0; }),
            "a mark below 0");
    static const std::map<std::string, int> quizzes = {{"mchoice", 5}, {"qsort", 20}, {"qmatch", 25}};
    if (const auto quiz = quizzes.find(screen.name); quiz != quizzes.end()) {
        lookatquestion(screen, quiz->second);
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
void RandomPlayer::lookatquestion(const Screen& screen, int worth)
{
    const std::int64_t marks = std::accumulate(usedmarks.begin(), usedmarks.end(), std::int64_t{0});
    if (seen_ == screen.name && marks == marks_) {
        return;
    }
    seen_ = screen.name;
    marks_ = marks;
    const std::set<std::int16_t> items(chosen.begin(), chosen.begin() + 5);
    ++asked_;
    worth_ = worth;
    const bool ofpeople = kindof(qtype).of == ItemKind::person;
    std::set<std::string> texts;
    for (const std::int16_t item : items) {
        texts.insert(getpstr(item, qtype));
        require(item >= 0 && item < (ofpeople ? peoplecount() : eventcount()), "an item outside its family");
    }
    require(items.size() == 5 && texts.size() == 5 && *texts.begin() > " ", "the five items are not good");
    if (players[0].asked == 0) {
        right_ = possible_ = 0;
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
    const std::string log = contentof("bdqquiz.log");
    const std::vector<std::string> lines = split(log.substr(logged_), "\n");
    logged_ = log.size();
    const auto headers = std::count_if(lines.begin(), lines.end(), [](const std::string& line) {
        return line == "Multiple Choice\r" || line.starts_with("Match ") || line.starts_with("Items to sort by ");
    });
    require(logstatus != 0 || lines.empty(), "a line in a log that is off");
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

} // namespace brindor::tests
