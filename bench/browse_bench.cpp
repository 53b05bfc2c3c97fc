#include "editors/eentry.h"
#include "editors/pentry.h"
#include "frame/services/settings.h"
#include "generated.h"
#include "person.h"
#include "timeline/reader.h"
#include "timeline/timeline.h"
#include "toolkit/qt/qthost.h"

#include <cstdio>
#include <string>
#include <vector>

// Browses the people and events in the game folder that is the current one, and tells the CPU time from an act until
// its window is painted and nothing is left to do.
namespace brindor::bench {

namespace {

void row(const char* what, const std::vector<double>& costs)
{
    std::printf("| %s | %.1f ms | %.1f ms | %zu |\n", what, quantile(costs, 0.5), quantile(costs, 0.99), costs.size());
}

// Next through all events of a shipped timeline, each of which has a picture.
void turnpages()
{
    curperiod = lastperiod;
    loadperiod();
    std::vector<double> costs;
    const Person person([&costs](QWidget& window, double cost) {
        if (curevent > 0) {
            costs.push_back(cost);
        }
        const bool last = curevent == static_cast<std::int16_t>(nevents) - 1;
        click(window, last ? "cmdOK" : "cmdNext");
    });
    showevents();
    row("Next with a picture", costs);
}

// The record screens of a timeline with as many records as there can be, all events with a picture.
void open()
{
    const std::string picture = events.front().imagename;
    loadtimeline(mostrecords, mostrecords);
    for (EventRec& event : events) {
        event.imagename = picture;
    }
    constexpr int times = 15;
    std::vector<double> costs;
    for (int i = 0; i < times; ++i) {
        const Person person([&costs](QWidget& window, double cost) {
            costs.push_back(cost);
            window.close();
        });
        i % 2 == 0 ? showevents() : showpeople();
    }
    row("opening with 32,767 records", costs);
}

} // namespace

} // namespace brindor::bench

int main(int argc, char** argv)
{
    using namespace brindor;
    return bench::runoffscreen(argc, argv, [] {
        const toolkit::QtHost host;
        readsettings();
        viewonly = 1;
        bench::turnpages();
        bench::open();
    });
}
