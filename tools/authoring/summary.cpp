#include "authoring/summary.h"

#include "authoring/folder.h"
#include "authoring/pictures.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>

namespace brindor::authoring {

namespace {

constexpr std::array<std::string_view, 2> regioncolumns = {"name", "region"};
constexpr std::array<std::string_view, 1> womencolumns = {"name"};
constexpr std::array<std::string_view, 1> rulercolumns = {"occupation"};
constexpr const char* notgiven = "not given";

using Counts = std::map<std::string, std::int64_t>;

struct Sides {
    std::optional<std::map<std::string, std::string>> regions; // by faction or nation
    std::optional<std::set<std::string>> women;
    std::optional<std::set<std::string>> rulers;
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
};

// A side file is optional; one that stands there must be right.
std::optional<std::vector<CsvRecord>> readside(const std::string& file, std::span<const std::string_view> columns,
                                               Findings& findings)
{
    return isregularfile(file) ? readtable({file, columns}, findings) : std::nullopt;
}

std::optional<std::set<std::string>> readnames(const std::string& file, std::span<const std::string_view> columns,
                                               Findings& findings)
{
    const auto records = readside(file, columns, findings);
    if (!records) {
        return std::nullopt;
    }
    std::set<std::string> names;
    for (const CsvRecord& record : *records) {
        names.insert(record.fields.front());
    }
    return names;
}

Sides readsides(const std::string& folder, Findings& findings)
{
    Sides sides;
    if (const auto records = readside(inside(folder, "../regions.csv"), regioncolumns, findings)) {
        sides.regions.emplace();
        for (const CsvRecord& record : *records) {
            (*sides.regions)[record.fields.front()] = record.fields.size() > 1 ? record.fields[1] : std::string();
        }
    }
    sides.women = readnames(inside(folder, "women.csv"), womencolumns, findings);
    sides.rulers = readnames(inside(folder, "rulers.csv"), rulercolumns, findings);
    return sides;
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

std::optional<std::int64_t> countmembers(const std::vector<PersonForm>& forms, std::string PersonForm::*field,
                                         const std::optional<std::set<std::string>>& names)
{
    if (!names) {
        return std::nullopt;
    }
    return std::count_if(forms.begin(), forms.end(),
                         [&](const PersonForm& form) { return names->contains(form.*field); });
}

// A name in a side file that no record has is a slip of the pen.
void reportstrangers(const std::string& file, const std::optional<std::set<std::string>>& names,
                     const std::set<std::string>& known, Findings& findings)
{
    for (const std::string& name : names.value_or(std::set<std::string>())) {
        if (!known.contains(name)) {
            findings.push_back({Severity::warning, file, 0, '"' + name + "\" does not stand in people.csv"});
        }
    }
}

Balance balanceof(std::string folder, Findings& findings)
{
    while (folder.size() > 1 && folder.ends_with('/')) {
        folder.pop_back();
    }
    const Forms forms = readfolder(folder, findings);
    const Sides sides = readsides(folder, findings);
    Balance balance;
    balance.title = folder.substr(folder.find_last_of('/') + 1);
    if (!balance.title.empty()) {
        balance.title.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(balance.title.front())));
    }
    balance.people = static_cast<std::int64_t>(forms.people.size());
    balance.events = static_cast<std::int64_t>(forms.events.size());
    balance.peopleregions = countregions(forms.people, &PersonForm::faction, sides);
    balance.eventregions = countregions(forms.events, &EventForm::nation1, sides);
    balance.women = countmembers(forms.people, static_cast<std::string PersonForm::*>(&ItemForm::name), sides.women);
    balance.rulers = countmembers(forms.people, &PersonForm::occupation, sides.rulers);
    std::set<std::string> names;
    for (const PersonForm& form : forms.people) {
        names.insert(form.name);
        ++balance.factions[form.faction];
        ++balance.occupations[form.occupation];
    }
    for (const EventForm& form : forms.events) {
        ++balance.groups[form.group];
        for (const std::string& nation : std::set<std::string>{form.nation1, form.nation2}) {
            ++balance.nations[nation];
        }
    }
    std::set<std::string> occupationnames;
    for (const auto& [name, count] : balance.occupations) {
        occupationnames.insert(name);
    }
    reportstrangers(inside(folder, "women.csv"), sides.women, names, findings);
    reportstrangers(inside(folder, "rulers.csv"), sides.rulers, occupationnames, findings);
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

class Table {
public:
    explicit Table(const std::vector<Balance>& balances) : balances_(balances)
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
    balances.reserve(folders.size());
    for (const std::string& folder : folders) {
        balances.push_back(balanceof(folder, findings));
    }
    Table table(balances);
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
    return table.text();
}

} // namespace brindor::authoring
