#include "authoring/checks.h"

#include "authoring/notes.h"
#include "base/text.h"
#include "questions/question.h"
#include "questions/selection.h"
#include "questions/types.h"
#include "timeline/timeline.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace brindor::authoring {

namespace {

template <class Form>
void checknamesanddates(const std::vector<Form>& forms, Notes notes)
{
    Seen names;
    for (const Form& form : forms) {
        if (form.name.empty()) {
            notes.error(form, "name", "the name is empty");
        } else if (const std::optional<Twins> twins = names.add(form.name, form)) {
            notes.error(twins->second, "name",
                        inquotes(twins->second.name) + " stands at " + atline(twins->first) + " too");
        }
        if (form.date2 < form.date1) {
            notes.error(form, "date2",
                        numbertext(form.date2) + " lies before the first date, " + numbertext(form.date1));
        }
    }
}

void checkkind(const ItemForm& form, std::string_view column, std::int16_t kind, Notes& notes)
{
    if (kind < 0 || static_cast<std::size_t>(kind) >= kindwords.size()) {
        notes.error(form, column, numbertext(kind) + " is no kind of date; the kinds are 0, 1 and 2");
    }
}

void checkindex(const ItemForm& form, std::string_view column, std::int16_t index, const Catalogue& catalogue,
                Notes& notes)
{
    const auto last = static_cast<std::int64_t>(catalogue.size()) - 1;
    if (index < 0 || index > last) {
        notes.error(form, column, numbertext(index) + " lies outside the list, which ends at " + numbertext(last));
    }
}

// A question takes five items that differ in what it shows.
void checkplayable(std::size_t count, ItemKind of, Notes& notes)
{
    const std::string what = of == ItemKind::person ? "people" : "events";
    if (count < static_cast<std::size_t>(itemsasked)) {
        notes.add(
            Severity::error, 1,
            "only " +
                (of == ItemKind::person ? counttext(count, "person", "people") : counttext(count, "event", "events")) +
                "; a question takes five, so give five at least");
        return;
    }
    const ByType<bool> fillable = fillabletypes();
    for (std::int16_t type = 1; type <= lasttype; ++type) {
        if (kindof(type).of == of && !fillable[static_cast<std::size_t>(type)]) {
            notes.add(Severity::error, 1,
                      "the questions " + inquotes(kindof(type).name) + " cannot be asked; they need five " + what +
                          " that differ in what the question shows");
        }
    }
}

} // namespace

void checkrecords(const Forms& forms, Findings& findings)
{
    checknamesanddates(forms.people, {forms.peoplesource, findings});
    checknamesanddates(forms.events, {forms.eventsource, findings});
}

void checktimeline(const Forms& forms, Findings& findings)
{
    Notes peoplenotes(forms.peoplesource, findings);
    Notes eventnotes(forms.eventsource, findings);
    checkplayable(forms.people.size(), ItemKind::person, peoplenotes);
    checkplayable(forms.events.size(), ItemKind::event, eventnotes);
    for (std::size_t i = 0; i < forms.people.size(); ++i) {
        const PersonForm& form = forms.people[i];
        const PersonRec& record = people[i];
        checkkind(form, "kind1", record.datetype1, peoplenotes);
        checkkind(form, "kind2", record.datetype2, peoplenotes);
        checkindex(form, "faction", record.faction, factions, peoplenotes);
        checkindex(form, "occupation", record.occupation, occupations, peoplenotes);
    }
    for (std::size_t i = 0; i < forms.events.size(); ++i) {
        const EventForm& form = forms.events[i];
        const EventRec& record = events[i];
        checkkind(form, "kind1", record.datetype1, eventnotes);
        checkkind(form, "kind2", record.datetype2, eventnotes);
        checkindex(form, "group", record.group, groups, eventnotes);
        checkindex(form, "nation1", record.nation1, nations, eventnotes);
        checkindex(form, "nation2", record.nation2, nations, eventnotes);
    }
}

} // namespace brindor::authoring
