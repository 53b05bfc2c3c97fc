#include "authoring/checks.h"

#include "authoring/limits.h"
#include "authoring/playable.h"
#include "authoring/words.h"
#include "base/text.h"
#include "questions/datetext.h"
#include "timeline/timeline.h"

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace brindor::authoring {

namespace {

// The findings about the records of one file.
class Notes {
public:
    Notes(const Source& source, Findings& findings) : source_(source), findings_(findings) {}

    void error(const ItemForm& form, std::string_view column, const std::string& what)
    {
        add(Severity::error, form.line, source_.field(column) + ": " + what);
    }

    void warning(const ItemForm& form, std::string_view column, const std::string& what)
    {
        add(Severity::warning, form.line, source_.field(column) + ": " + what);
    }

    void add(Severity severity, std::int64_t line, const std::string& text)
    {
        findings_.push_back({severity, source_.file, line, text});
    }

private:
    const Source& source_;
    Findings& findings_;
};

std::string inquotes(const std::string& text)
{
    return '"' + text + '"';
}

std::string atline(const ItemForm& form)
{
    return "line " + numbertext(form.line);
}

// Two records with one text, in the order of the file.
struct Twins {
    const ItemForm& first;
    const ItemForm& second;
};

// The first record of each text; tells of a record that has the text of one before, letter case and accents aside.
class Seen {
public:
    std::optional<Twins> add(const std::string& text, const ItemForm& form)
    {
        const auto [place, fresh] = first_.emplace(folded(text), &form);
        if (fresh) {
            return std::nullopt;
        }
        const ItemForm& other = *place->second;
        return other.line <= form.line ? Twins{other, form} : Twins{form, other};
    }

private:
    std::map<std::string, const ItemForm*> first_;
};

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

void checktext(const ItemForm& form, std::string_view column, const std::string& text, std::size_t longest,
               Notes& notes)
{
    const std::size_t length = charactercount(text);
    if (length > longest) {
        notes.warning(form, column,
                      numbertext(static_cast<std::int64_t>(length)) +
                          " characters are too long for the screens; at most " +
                          numbertext(static_cast<std::int64_t>(longest)) + " fit");
    }
}

void checkdescription(const ItemForm& form, std::string_view column, const std::string& text, Notes& notes)
{
    checktext(form, column, text, longestdescription, notes);
    const std::string word = sharedword(form.name, text);
    if (!word.empty()) {
        notes.warning(form, column, "the word " + inquotes(word) + " gives the name away");
    }
    const std::string year = yearin(text);
    if (!year.empty()) {
        notes.warning(form, column, year + " looks like a year, which gives the date away");
    }
}

void checkitem(const ItemForm& form, std::size_t longestname, Notes& notes)
{
    checktext(form, "name", form.name, longestname, notes);
    if (form.desc1.empty()) {
        notes.warning(form, "desc1", "empty; questions about descriptions leave this record out");
    }
    checkdescription(form, "desc1", form.desc1, notes);
    checkdescription(form, "desc2", form.desc2, notes);
}

// One list of names and the records that use them.
class Usage {
public:
    Usage(std::string_view what, Notes& notes) : what_(what), notes_(notes) {}

    // The record's one or two columns with their names.
    void use(const ItemForm& form, const std::map<std::string_view, std::string>& columns)
    {
        std::set<std::string> counted;
        for (const auto& [column, name] : columns) {
            if (name.empty()) {
                notes_.warning(form, column, "empty; the questions that name it leave this record out");
            } else if (counted.insert(name).second) {
                Use& use = uses_.try_emplace(name, Use{&form, column, 0}).first->second;
                ++use.count;
            }
        }
    }

    void report()
    {
        for (const auto& [name, use] : uses_) {
            checktext(*use.first, use.column, name, longestentry, notes_);
            if (use.count == 1) {
                notes_.warning(*use.first, use.column,
                               "the " + std::string(what_) + ' ' + inquotes(name) + " is used only here");
            }
        }
    }

private:
    struct Use {
        const ItemForm* first;
        std::string_view column;
        int count;
    };

    std::string_view what_;
    Notes& notes_;
    std::map<std::string, Use> uses_;
};

void checkpeoplefairness(const Forms& forms, Notes notes)
{
    Seen descriptions;
    Usage usedfactions("faction", notes);
    Usage usedoccupations("occupation", notes);
    for (const PersonForm& form : forms.people) {
        checkitem(form, longestpersonname, notes);
        if (!form.desc1.empty()) {
            if (const std::optional<Twins> twins = descriptions.add(form.desc1, form)) {
                notes.warning(twins->second, "desc1",
                              twins->first.name + ", " + atline(twins->first) + ", has the same text");
            }
        }
        usedfactions.use(form, {{"faction", form.faction}});
        usedoccupations.use(form, {{"occupation", form.occupation}});
    }
    usedfactions.report();
    usedoccupations.report();
}

void checkeventfairness(const Forms& forms, Notes notes)
{
    Seen dates;
    Usage usedgroups("group", notes);
    Usage usednations("nation", notes);
    for (const EventForm& form : forms.events) {
        checkitem(form, longesteventname, notes);
        const std::string year = yearin(form.name);
        if (!year.empty()) {
            notes.warning(form, "name", year + " looks like a year, which gives the date away");
        }
        const std::string date = datetext(form, "to");
        if (const std::optional<Twins> twins = dates.add(date, form)) {
            notes.warning(twins->second, "date1",
                          "the date " + inquotes(date) + " is that of " + twins->first.name + ", " +
                              atline(twins->first) + ", too, so \"What happened in\" has two right answers");
        }
        usedgroups.use(form, {{"group", form.group}});
        usednations.use(form, {{"nation1", form.nation1}, {"nation2", form.nation2}});
    }
    usedgroups.report();
    usednations.report();
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
    for (const UnaskedKind& kind : unaskedkinds()) {
        (kind.ofpeople ? peoplenotes : eventnotes)
            .add(Severity::error, 1,
                 "the questions " + inquotes(kind.name) + " cannot be asked; they need five " +
                     (kind.ofpeople ? "people" : "events") + " that differ in what the question shows");
    }
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

void checkfairness(const Forms& forms, Findings& findings)
{
    checkpeoplefairness(forms, {forms.peoplesource, findings});
    checkeventfairness(forms, {forms.eventsource, findings});
}

} // namespace brindor::authoring
