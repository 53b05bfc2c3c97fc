#include "authoring/summary.h"

#include "authoring/commands.h"
#include "authoring/folder.h"
#include "authoring/table.h"
#include "authoring/writing.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>

namespace brindor::authoring {

namespace {

constexpr std::array<Column, 2> regioncolumns = {{{"name", true}, {"region", true}}};
constexpr std::array<Column, 1> rulercolumns = {{{"occupation", true}}};
constexpr const char* notgiven = "not given";

using Counts = std::map<std::string, std::int64_t>;

// What the files beside a timeline's folder say.
struct Sides {
    std::optional<std::map<std::string, std::string>> regions; // by faction or nation
    std::optional<std::set<std::string>> rulers;               // occupations
};

struct Balance {
    std::string title;
    std::int64_t people = 0;
    std::int64_t events = 0;
    std::optional<Counts> peopleregions;
    std::optional<Counts> eventregions;
    std::optional<std::int64_t> women;
    std::optional<std::int64_t> rulers;
    Counts factions; // records that use each name
    Counts occupations;
    Counts groups;
    Counts nations;
    std::optional<Counts> fame; // records of both families by "1" to "5" and "not given"
    std::optional<Counts> sources;

    std::int64_t records() const { return people + events; }
};

// A side file is optional; one that stands there must be right.
std::optional<Table> readside(const std::string& file, std::span<const Column> columns, Findings& findings)
{
    return isregularfile(file) ? readtable(file, columns, findings) : std::nullopt;
}

// Of the folder above the timelines' own.
Sides readsides(const std::string& folder, Findings& findings)
{
    Sides sides;
    if (const auto table = readside(inside(folder, "regions.csv"), regioncolumns, findings)) {
        sides.regions.emplace();
        for (const CsvRecord& record : table->records) {
            (*sides.regions)[fieldof(table->source, record, "name")] = fieldof(table->source, record, "region");
        }
    }
    if (const auto table = readside(inside(folder, "rulers.csv"), rulercolumns, findings)) {
        sides.rulers.emplace();
        for (const CsvRecord& record : table->records) {
            sides.rulers->insert(fieldof(table->source, record, "occupation"));
        }
    }
    return sides;
}

std::string folderabove(std::string folder)
{
    while (folder.size() > 1 && folder.ends_with('/')) {
        folder.pop_back();
    }
    const bool named = folder != "." && !folder.ends_with("..");
    return named ? folderof(folder) : inside(folder, "..");
}

template <class Form>
std::optional<Counts> countregions(const std::vector<Form>& forms, std::string Form::*name, const Sides& sides)
{
    if (!sides.regions) {
        return std::nullopt;
    }
    Counts counts;
    for (const Form& form : forms) {
        const auto region = sides.regions->find(form.*name);
        ++counts[region == sides.regions->end() ? "(no region)" : region->second];
    }
    return counts;
}

constexpr const char* lookedup = "looked up";
constexpr const char* frommemory = "from memory";

void countrecord(const ItemForm& form, Counts& fame, Counts& sources)
{
    ++fame[form.fame == 0 ? notgiven : numbertext(form.fame)];
    const bool memory = std::all_of(form.sources.begin(), form.sources.end(),
                                    [](const std::string& source) { return source == "memory"; });
    ++sources[form.sources.empty() ? notgiven : memory ? frommemory : lookedup];
}

void countrecords(const Forms& forms, Balance& balance)
{
    Counts fame;
    Counts sources;
    for (const PersonForm& form : forms.people) {
        countrecord(form, fame, sources);
    }
    for (const EventForm& form : forms.events) {
        countrecord(form, fame, sources);
    }
    const auto given = [&forms](std::string_view column) {
        return forms.peoplesource.has(column) || forms.eventsource.has(column);
    };
    balance.fame = given("fame") ? std::optional(fame) : std::nullopt;
    balance.sources = given("source") ? std::optional(sources) : std::nullopt;
}

Balance balanceof(const std::string& folder, const Sides& sides, Findings& findings)
{
    const Forms forms = readfolder(folder, findings);
    Balance balance;
    balance.title = titleof(folder);
    balance.people = static_cast<std::int64_t>(forms.people.size());
    balance.events = static_cast<std::int64_t>(forms.events.size());
    balance.peopleregions = countregions(forms.people, &PersonForm::faction, sides);
    balance.eventregions = countregions(forms.events, &EventForm::nation1, sides);
    if (forms.peoplesource.has("woman")) {
        balance.women =
            std::count_if(forms.people.begin(), forms.people.end(), [](const PersonForm& form) { return form.woman; });
    }
    if (sides.rulers) {
        balance.rulers = std::count_if(forms.people.begin(), forms.people.end(), [&sides](const PersonForm& form) {
            return sides.rulers->contains(form.occupation);
        });
    }
    countrecords(forms, balance);
    for (const PersonForm& form : forms.people) {
        ++balance.factions[form.faction];
        ++balance.occupations[form.occupation];
    }
    for (const EventForm& form : forms.events) {
        ++balance.groups[form.group];
        for (const std::string& nation : std::set<std::string>{form.nation1, form.nation2}) {
            ++balance.nations[nation];
        }
    }
    return balance;
}

// "12 (8.0%)"
std::string share(std::int64_t part, std::int64_t whole)
{
    const std::int64_t permille =
        whole == 0
            ? 0
            : static_cast<std::int64_t>(roundtoeven(1000.0 * static_cast<double>(part) / static_cast<double>(whole)));
    return numbertext(part) + " (" + numbertext(permille / 10) + '.' + numbertext(permille % 10) + "%)";
}

std::string share(const std::optional<std::int64_t>& part, std::int64_t whole)
{
    return part ? share(*part, whole) : notgiven;
}

std::string share(const std::optional<Counts>& counts, const std::string& name, std::int64_t whole)
{
    if (!counts) {
        return notgiven;
    }
    const auto found = counts->find(name);
    return found == counts->end() ? share(0, whole) : share(found->second, whole);
}

std::string listsize(const Counts& counts)
{
    const auto once = std::count_if(counts.begin(), counts.end(), [](const auto& entry) { return entry.second == 1; });
    return numbertext(static_cast<std::int64_t>(counts.size())) + ", " + numbertext(once) + " used once";
}

class Columns {
public:
    explicit Columns(const std::vector<Balance>& balances) : balances_(balances)
    {
        row("", [](const Balance& balance) { return balance.title; });
        text_ += "|---|";
        for (std::size_t i = 0; i < balances.size(); ++i) {
            text_ += "---|";
        }
        text_ += '\n';
    }

    void row(const std::string& head, const std::function<std::string(const Balance&)>& cell)
    {
        text_ += "| " + head + " |";
        for (const Balance& balance : balances_) {
            text_ += ' ' + cell(balance) + " |";
        }
        text_ += '\n';
    }

    // A row for each name that any of the timelines has.
    void rows(const std::string& head, const std::function<std::optional<Counts>(const Balance&)>& counts,
              std::int64_t Balance::*whole)
    {
        std::set<std::string> names;
        for (const Balance& balance : balances_) {
            for (const auto& [name, count] : counts(balance).value_or(Counts())) {
                names.insert(name);
            }
        }
        for (const std::string& name : names) {
            row(head + ": " + (name.empty() ? "(none)" : name),
                [&](const Balance& balance) { return share(counts(balance), name, balance.*whole); });
        }
        if (names.empty()) {
            row(head, [](const Balance&) { return notgiven; });
        }
    }

    const std::string& text() const { return text_; }

private:
    const std::vector<Balance>& balances_;
    std::string text_;
};

} // namespace

std::string summarytable(const std::vector<std::string>& folders, Findings& findings)
{
    std::vector<Balance> balances;
    std::map<std::string, Sides> sides; // by the folder that they lie in
    for (const std::string& folder : folders) {
        const std::string above = folderabove(folder);
        if (!sides.contains(above)) {
            sides.emplace(above, readsides(above, findings));
        }
        balances.push_back(balanceof(folder, sides.at(above), findings));
    }
    Columns table(balances);
    table.row("People", [](const Balance& b) { return numbertext(b.people); });
    table.rows(
        "People of", [](const Balance& b) { return b.peopleregions; }, &Balance::people);
    table.row("Women", [](const Balance& b) { return share(b.women, b.people); });
    table.row("Rulers", [](const Balance& b) { return share(b.rulers, b.people); });
    table.row("Factions", [](const Balance& b) { return listsize(b.factions); });
    table.row("Occupations", [](const Balance& b) { return listsize(b.occupations); });
    table.row("Events", [](const Balance& b) { return numbertext(b.events); });
    table.rows(
        "Events of", [](const Balance& b) { return b.eventregions; }, &Balance::events);
    table.rows(
        "Kind", [](const Balance& b) { return std::optional(b.groups); }, &Balance::events);
    table.row("Kinds", [](const Balance& b) { return listsize(b.groups); });
    table.row("Nations", [](const Balance& b) { return listsize(b.nations); });
    for (const char* source : {lookedup, frommemory, notgiven}) {
        table.row("Sources: " + std::string(source),
                  [source](const Balance& b) { return share(b.sources, source, b.records()); });
    }
    for (const char* fame : {"1", "2", "3", "4", "5", notgiven}) {
        table.row("Fame: " + std::string(fame), [fame](const Balance& b) { return share(b.fame, fame, b.records()); });
    }
    table.row("Fame: 1 to 3", [](const Balance& b) {
        std::optional<std::int64_t> known;
        for (const char* fame : {"1", "2", "3"}) {
            const auto found = b.fame ? b.fame->find(fame) : Counts::const_iterator();
            known = b.fame ? std::optional(known.value_or(0) + (found == b.fame->end() ? 0 : found->second)) : known;
        }
        return share(known, b.records());
    });
    return table.text();
}

} // namespace brindor::authoring
