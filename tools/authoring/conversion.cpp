#include "authoring/conversion.h"

#include "authoring/words.h"
#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <set>

namespace brindor::authoring {

namespace {

struct Names {
    std::map<std::string, std::int64_t> uses; // by records

    void use(const std::set<std::string>& ofonerecord)
    {
        for (const std::string& name : ofonerecord) {
            uses[name] += name.empty() ? 0 : 1;
        }
    }
};

// A Catalogue with the indices of its names; index 0 is the empty name.
struct Listing {
    Catalogue entries{1};
    std::map<std::string, std::int16_t> indices{{"", std::int16_t{0}}};
};

Listing listed(const Names& names)
{
    std::vector<std::string> order;
    for (const auto& [name, uses] : names.uses) {
        if (!name.empty()) {
            order.push_back(name);
        }
    }
    std::sort(order.begin(), order.end(), listedbefore);
    Listing listing;
    for (const std::string& name : order) {
        listing.indices[name] = index16(static_cast<std::int64_t>(listing.entries.size()));
        listing.entries.push_back({name, index16(names.uses.at(name))});
    }
    return listing;
}

void putitem(ItemRec& record, const ItemForm& form)
{
    static_cast<Dates&>(record) = static_cast<const Dates&>(form);
    record.name = form.name;
    record.desc1 = form.desc1;
    record.desc2 = form.desc2;
    record.live = 1;
}

void putpeople(const std::vector<PersonForm>& forms)
{
    Names usedfactions;
    Names usedoccupations;
    for (const PersonForm& form : forms) {
        usedfactions.use({form.faction});
        usedoccupations.use({form.occupation});
    }
    Listing factionlist = listed(usedfactions);
    Listing occupationlist = listed(usedoccupations);
    people.assign(forms.size() + 2, {});
    for (std::size_t i = 0; i < forms.size(); ++i) {
        putitem(people[i], forms[i]);
        people[i].faction = factionlist.indices.at(forms[i].faction);
        people[i].occupation = occupationlist.indices.at(forms[i].occupation);
    }
    npeople = static_cast<double>(forms.size());
    factions = std::move(factionlist.entries);
    occupations = std::move(occupationlist.entries);
}

void putevents(const std::vector<EventForm>& forms, const std::vector<EventPicture>& pictures)
{
    Names usedgroups;
    Names usednations;
    for (const EventForm& form : forms) {
        usedgroups.use({form.group});
        usednations.use({form.nation1, form.nation2});
    }
    Listing grouplist = listed(usedgroups);
    Listing nationlist = listed(usednations);
    events.assign(forms.size() + 2, {});
    for (std::size_t i = 0; i < forms.size(); ++i) {
        putitem(events[i], forms[i]);
        events[i].group = grouplist.indices.at(forms[i].group);
        events[i].nation1 = nationlist.indices.at(forms[i].nation1);
        events[i].nation2 = nationlist.indices.at(forms[i].nation2);
        events[i].imagename = pictures[i].name;
        events[i].imagesize1 = pictures[i].width;
        events[i].imagesize2 = pictures[i].height;
    }
    nevents = static_cast<double>(forms.size());
    groups = std::move(grouplist.entries);
    nations = std::move(nationlist.entries);
}

std::int16_t entrycount(const Catalogue& catalogue)
{
    return index16(static_cast<std::int64_t>(catalogue.size()) - 1);
}

template <class Form>
Form itemform(const ItemRec& record, std::size_t index, const std::vector<std::int64_t>& lines)
{
    Form form;
    static_cast<Dates&>(form) = static_cast<const Dates&>(record);
    form.line = index < lines.size() ? lines[index] : 0;
    form.name = toutf8(record.name);
    form.desc1 = toutf8(record.desc1);
    form.desc2 = toutf8(record.desc2);
    return form;
}

} // namespace

Result<Done> puttimeline(const Forms& forms, const std::vector<EventPicture>& pictures)
{
    const std::size_t most = static_cast<std::size_t>(mostrecords);
    if (forms.people.size() > most || forms.events.size() > most) {
        return {std::nullopt, "a timeline holds at most " + numbertext(mostrecords) + " people and as many events"};
    }
    putpeople(forms.people);
    putevents(forms.events, pictures);
    ++timelinestate;
    if (nations.size() - 1 > most) {
        return {std::nullopt, "a timeline holds at most " + numbertext(mostrecords) + " nations"};
    }
    nfactions = entrycount(factions);
    noccupations = entrycount(occupations);
    ngroups = entrycount(groups);
    nnations = entrycount(nations);
    return {Done{}, {}};
}

Forms timelineforms(const std::string& file, const RecordLines& lines)
{
    Forms forms;
    forms.peoplesource.file = file;
    forms.eventsource.file = file;
    for (std::int16_t i = 0; i < peoplecount(); ++i) {
        const PersonRec& record = personrec(i);
        PersonForm form = itemform<PersonForm>(record, static_cast<std::size_t>(i), lines.people);
        form.faction = toutf8(entryname(factions, record.faction));
        form.occupation = toutf8(entryname(occupations, record.occupation));
        forms.people.push_back(std::move(form));
    }
    for (std::int16_t i = 0; i < eventcount(); ++i) {
        const EventRec& record = eventrec(i);
        EventForm form = itemform<EventForm>(record, static_cast<std::size_t>(i), lines.events);
        form.group = toutf8(entryname(groups, record.group));
        form.nation1 = toutf8(entryname(nations, record.nation1));
        form.nation2 = toutf8(entryname(nations, record.nation2));
        form.picture = toutf8(record.imagename);
        forms.events.push_back(std::move(form));
    }
    return forms;
}

} // namespace brindor::authoring
