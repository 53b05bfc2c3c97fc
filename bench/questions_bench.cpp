#include "base/random.h"
#include "frame/mainscreen.h"
#include "frame/services/settings.h"
#include "person.h"
#include "questions/question.h"
#include "toolkit/operations.h"
#include "toolkit/qt/qthost.h"

#include <QMessageBox>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <malloc.h>
#include <map>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

// Plays games in the game folder that is the current one, and tells what the way from one question to the next costs:
// CPU time from the click that closes the score screen until the question is painted and nothing is left to do. The
// first argument says how many questions (500 where there is none). With a second one it tells instead what the memory
// in use has grown by since as many questions as that were asked.
namespace brindor::bench {

namespace {

// Memory of this process in KiB that is in use, after what is free has been given back.
long memoryinuse()
{
    malloc_trim(0);
    std::ifstream file("/proc/self/statm");
    long pages = 0;
    file >> pages >> pages; // the whole, then what is in memory
    return pages * (sysconf(_SC_PAGESIZE) / 1024);
}

class Player {
public:
    Player(int questions, int before) : questions_(questions), before_(before) {}

    // The main screen is always seen with the same windows open, so the memory is looked at there.
    void act(QWidget& window, double cost)
    {
        const std::string name = window.objectName().toStdString();
        if (name == "main") {
            atmain(window);
        } else if (name == "showscor") {
            scored_ = true;
            click(window, "Command1");
        } else if (auto* message = qobject_cast<QMessageBox*>(&window)) {
            scored_ = false;
            message->close();
        } else {
            if (std::exchange(scored_, false) && before_ == 0) {
                costs_.push_back(cost);
                ofscreen_[name].push_back(cost);
            }
            ++asked_;
            click(window, name == "mchoice" ? "choice(0)" : "Command1");
        }
    }

    void tell() const
    {
        const auto row = [](const std::string& name, const std::vector<double>& costs) {
            std::printf("| %s | %.2f ms | %.2f ms | %zu |\n", name.c_str(), quantile(costs, 0.5), quantile(costs, 0.99),
                        costs.size());
        };
        if (before_ > 0) {
            std::printf("| memory after %d questions, and what it has grown by after %d | %.1f MiB | %+.2f MiB |\n",
                        askedfirst_, asked_, static_cast<double>(first_) / 1024,
                        static_cast<double>(last_ - first_) / 1024);
            return;
        }
        row("all screens", costs_);
        for (const auto& [name, costs] : ofscreen_) {
            row(name, costs);
        }
    }

private:
    void atmain(QWidget& window)
    {
        if (asked_ == 0) {
            seedrandom(7); // the start has seeded it from the clock
            nquestion = mostquestions;
        }
        if (before_ > 0 && first_ == 0 && asked_ >= before_) {
            askedfirst_ = asked_;
            first_ = memoryinuse();
        }
        if (asked_ >= questions_) {
            last_ = before_ > 0 ? memoryinuse() : 0;
            click(window, "cmdquit");
        } else {
            click(window, "Command1");
        }
    }

    int questions_;
    int before_;
    int asked_ = 0;
    int askedfirst_ = 0;
    long first_ = 0;
    long last_ = 0;
    bool scored_ = false;
    std::vector<double> costs_;
    std::map<std::string, std::vector<double>> ofscreen_;
};

} // namespace

} // namespace brindor::bench

int main(int argc, char** argv)
{
    using namespace brindor;
    bench::Player player(argc > 1 ? std::atoi(argv[1]) : 500, argc > 2 ? std::atoi(argv[2]) : 0);
    return bench::runoffscreen(argc, argv, [&player] {
        const toolkit::QtHost host;
        MainScreen screen(".");
        const bench::Person person([&player](QWidget& window, double cost) { player.act(window, cost); });
        toolkit::showmodal(screen);
        player.tell();
    });
}
