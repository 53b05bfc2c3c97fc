#include "authoring/checks.h"

#include "authoring/eventpictures.h"
#include "authoring/notes.h"
#include "authoring/words.h"
#include "base/numbers.h"
#include "base/text.h"
#include "coastlines/builtin.h"
#include "coastlines/coastlines.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace brindor::authoring {

namespace {

constexpr double nearland = 15;   // kilometres: harbours, headlands and the coastlines' own coarseness
constexpr double sameplace = 100; // kilometres within which one name may stand for slightly different points

// Words of places that lie at sea, or on islands too small for the coastlines.
constexpr std::array<std::string_view, 17> seawords = {
    "archipelago", "atlantic", "atoll", "bay",   "cape",    "channel", "coast",  "gulf",   "island",
    "islands",     "isle",     "isles", "ocean", "pacific", "sea",     "strait", "straits"};

std::string kilometres(double distance)
{
    return numbertext(roundtoint16(distance)) + " km";
}

bool issea(const std::string& place)
{
    const std::vector<std::string> words = wordsof(place);
    return std::any_of(words.begin(), words.end(), [](const std::string& word) {
        return std::find(seawords.begin(), seawords.end(), word) != seawords.end();
    });
}

void checksea(const EventForm& form, double distance, Notes& notes)
{
    if (distance > nearland && !issea(form.place)) {
        notes.warning(form, "latitude",
                      form.place + " lies in the sea, " + kilometres(distance) +
                          " from land; right for a small island or a fight at sea, else look at both degrees");
    }
}

} // namespace

void checkplaces(const Forms& forms, Findings& findings)
{
    Notes notes(forms.eventsource, findings);
    static const Result<Coastlines> coastlines = readcoastlines(builtin("land.txt"));
    if (!coastlines) {
        notes.add(Severity::error, 0, coastlines.reason);
        return;
    }
    std::map<std::pair<double, double>, double> distances; // from land
    std::map<std::string, const EventForm*> firsts;
    for (const EventForm& form : forms.events) {
        if (!hasplace(form)) {
            continue;
        }
        const Position position{*form.latitude, *form.longitude};
        const auto [known, unseen] = distances.try_emplace({position.latitude, position.longitude}, 0.0);
        if (unseen) {
            known->second = landdistance(*coastlines.value, position);
        }
        checksea(form, known->second, notes);
        const auto [place, fresh] = firsts.emplace(folded(form.place), &form);
        const EventForm& first = *place->second;
        const double apart = fresh ? 0 : distance(position, {*first.latitude, *first.longitude});
        if (apart > sameplace) {
            notes.warning(form, "place",
                          form.place + " lies " + kilometres(apart) + " from where it stands at " + atline(first));
        }
    }
}

} // namespace brindor::authoring
