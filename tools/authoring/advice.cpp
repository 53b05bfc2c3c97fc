#include "authoring/checks.h"

#include "authoring/notes.h"
#include "authoring/words.h"
#include "base/text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace brindor::authoring {

namespace {

// What fits on the screens at their default sizes, in characters.
constexpr std::size_t longestpersonname = 40;
constexpr std::size_t longesteventname = 60;
constexpr std::size_t longestdescription = 60;
constexpr std::size_t longestentry = 30; // of a faction, occupation, group or nation

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

constexpr std::size_t fewtold = 2; // names used once that are told one by one
constexpr std::size_t mostlisted = 5;

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
                Use& use =
                    uses_.try_emplace(name, Use{name, &form, column, 0, folded(name), wordsof(name)}).first->second;
                ++use.count;
            }
        }
    }

    void report()
    {
        std::vector<const Use*> once;
        for (const auto& [name, use] : uses_) {
            checktext(*use.first, use.column, name, longestentry, notes_);
            reportlonger(use);
            if (const Use* meant = meantby(use)) {
                tell(use, "stands " + times(use.count) + "; did you mean " + inquotes(meant->name) + "? it stands " +
                              times(meant->count));
            } else if (use.count == 1) {
                once.push_back(&use);
            }
        }
        reportonce(once);
    }

private:
    struct Use {
        std::string name;
        const ItemForm* first;
        std::string_view column;
        std::int64_t count;
        std::string folded;
        std::vector<std::string> words;
    };

    static std::string times(std::int64_t count) { return count == 1 ? "once" : numbertext(count) + " times"; }

    void tell(const Use& use, const std::string& what)
    {
        notes_.warning(*use.first, use.column, "the " + std::string(what_) + ' ' + inquotes(use.name) + ' ' + what);
    }

    // A name that stands much more often and is nearly the same.
    const Use* meantby(const Use& rare) const
    {
        constexpr std::int64_t muchmore = 3;
        constexpr std::size_t shortname = 5; // Iran and Iraq are two names
        constexpr std::size_t longname = 8;
        const std::size_t slips = rare.folded.size() >= longname ? 2 : rare.folded.size() >= shortname ? 1 : 0;
        for (const auto& [name, use] : uses_) {
            const bool samebutcase = use.folded == rare.folded && use.count >= rare.count;
            if (&use != &rare && (samebutcase || (use.count >= muchmore * rare.count &&
                                                  misspellings(use.folded, rare.folded) <= slips))) {
                return &use;
            }
        }
        return nullptr;
    }

    // Names of the list that hold this name whole, as "West Africa" does "Africa": one item may fit both.
    void reportlonger(const Use& use)
    {
        for (const auto& [longer, other] : uses_) {
            if (other.words.size() > use.words.size() && holdswords(other.words, use.words)) {
                tell(use, "stands whole in " + inquotes(longer) + ", " + atline(*other.first) +
                              "; a record may fit both names, so merge or rename them");
            }
        }
    }

    void reportonce(const std::vector<const Use*>& once)
    {
        if (once.size() <= fewtold) {
            for (const Use* use : once) {
                tell(*use, "is used only here");
            }
            return;
        }
        std::string names;
        for (std::size_t i = 0; i < std::min(once.size(), mostlisted); ++i) {
            names += (i == 0 ? "" : ", ") + once[i]->name;
        }
        const std::string more =
            once.size() > mostlisted
                ? " and " + numbertext(static_cast<std::int64_t>(once.size() - mostlisted)) + " more"
                : "";
        notes_.add(Severity::warning, 1,
                   numbertext(static_cast<std::int64_t>(once.size())) + ' ' + std::string(what_) +
                       "s are used only once, " + names + more + "; such a name is soon known by heart");
    }

    std::string_view what_;
    Notes& notes_;
    std::map<std::string, Use> uses_;
};

void advisepeople(const Forms& forms, Notes notes)
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

void adviseevents(const Forms& forms, Notes notes)
{
    Usage usedgroups("group", notes);
    Usage usednations("nation", notes);
    for (const EventForm& form : forms.events) {
        checkitem(form, longesteventname, notes);
        const std::string year = yearin(form.name);
        if (!year.empty()) {
            notes.warning(form, "name", year + " looks like a year, which gives the date away");
        }
        usedgroups.use(form, {{"group", form.group}});
        usednations.use(form, {{"nation1", form.nation1}, {"nation2", form.nation2}});
    }
    usedgroups.report();
    usednations.report();
}

} // namespace

void checktexts(const Forms& forms, Findings& findings)
{
    advisepeople(forms, {forms.peoplesource, findings});
    adviseevents(forms, {forms.eventsource, findings});
}

} // namespace brindor::authoring
