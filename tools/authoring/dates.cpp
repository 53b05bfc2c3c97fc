#include "authoring/checks.h"

#include "authoring/notes.h"
#include "base/text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>

namespace brindor::authoring {

namespace {

constexpr std::int64_t mostcovered = 20;

// Sorting goes by first dates, so a reign among births is sorted wrongly; and "(reign)" that stands seldom gives
// answers away. Of people before the fifth century BC a reign is often all that is known.
constexpr std::int64_t mostreigns = 12;      // of 100 people
constexpr std::int64_t mostearlyreigns = 25; // of 100 people in a timeline whose last event is early
constexpr std::int16_t early = -400;
constexpr std::int64_t fewestreigns = 15; // people, where there is any

bool within(const Dates& inner, const Dates& outer)
{
    return inner.date1 >= outer.date1 && inner.date2 <= outer.date2;
}

void checkranges(const std::vector<EventForm>& events, Notes& notes)
{
    for (const EventForm& form : events) {
        if (form.date1 == form.date2) {
            continue;
        }
        const std::int64_t covered =
            std::count_if(events.begin(), events.end(), [&form](const EventForm& e) { return within(e, form); }) - 1;
        if (covered > mostcovered) {
            notes.warning(form, "date2",
                          numbertext(form.date1) + " to " + numbertext(form.date2) + " covers " + numbertext(covered) +
                              " other events; give the year for which it is known");
        }
    }
}

void checkshareddates(const std::vector<EventForm>& events, Notes& notes)
{
    std::map<std::pair<std::int16_t, std::int16_t>, const EventForm*> firsts;
    for (const EventForm& form : events) {
        const auto [place, fresh] = firsts.emplace(std::pair(form.date1, form.date2), &form);
        if (fresh) {
            continue;
        }
        const bool before = place->second->line <= form.line;
        const EventForm& first = before ? *place->second : form;
        const EventForm& second = before ? form : *place->second;
        notes.note(second, "date1",
                   "the date is that of " + first.name + ", " + atline(first) +
                       ", too; fair only where each of them is well known for it");
    }
}

bool isreign(const Dates& dates)
{
    return dates.datetype1 == reign || dates.datetype2 == reign;
}

void checkreigns(const Forms& forms, Notes& notes)
{
    const auto count = static_cast<std::int64_t>(forms.people.size());
    const std::int64_t reigns = std::count_if(forms.people.begin(), forms.people.end(), isreign);
    const bool allearly =
        std::all_of(forms.events.begin(), forms.events.end(), [](const EventForm& form) { return form.date1 < early; });
    const std::int64_t most = allearly ? mostearlyreigns : mostreigns;
    const std::string have =
        numbertext(reigns) + " of " + numbertext(count) + (reigns == 1 ? " people has" : " people have") + " a reign";
    if (reigns > 0 && reigns < fewestreigns) {
        notes.add(Severity::warning, 1,
                  have + " for a date, so \"(reign)\" gives answers away; either none should, or at least " +
                      numbertext(fewestreigns));
    } else if (reigns * 100 > most * count) {
        notes.add(Severity::warning, 1,
                  have + " for a date; at most " + numbertext(most) +
                      " of 100 should, since sorting takes it for a birth: give birth and death where they are known");
    }
}

} // namespace

void checkdates(const Forms& forms, Findings& findings)
{
    Notes peoplenotes(forms.peoplesource, findings);
    Notes eventnotes(forms.eventsource, findings);
    checkreigns(forms, peoplenotes);
    checkranges(forms.events, eventnotes);
    checkshareddates(forms.events, eventnotes);
}

} // namespace brindor::authoring
