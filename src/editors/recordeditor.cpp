#include "editors/recordeditor.h"

#include "base/numbers.h"
#include "base/text.h"
#include "timeline/usedmarks.h"
#include "toolkit/operations.h"

#include <string>
#include <utility>

namespace brindor {

using namespace toolkit;

template <class Family>
std::int16_t RecordEditor<Family>::newentry = 0;

template <class Family>
std::int16_t RecordEditor<Family>::count()
{
    return roundtoint16(Family::count());
}

template <class Family>
void RecordEditor<Family>::begin(Differences differences)
{
    differs_ = std::move(differences);
    defaultbutton = &cmdok;
    load = [this] { start(); };

    combo1.pick = [this](std::int16_t line) {
        Family::cursor() = line;
        showentry(line);
    };
    for (CatalogueList& list : differs_.lists) {
        list.combo.pick = [this, &list](std::int16_t line) {
            datachanged = -1;
            list.current = add16(line, 1);
        };
    }
    watchfields(*differs_.dates);

    cmdnext.click = [this] { step(1); };
    cmdprev.click = [this] { step(-1); };
    cmdnew.click = [this] { startnew(); };
    cmddelete.click = [this] {
        differs_.deleteitem(Family::cursor());
        filllist();
    };
    cmdok.click = [this] {
        if (checkstore()) {
            closescreen(*this);
        }
    };
}

template <class Family>
void RecordEditor<Family>::start()
{
    fitcontents(*this, grid::margin);
    escapecloses = viewonly != 0; // while editing, Escape would drop what was typed
    filllist();
    for (const CatalogueList& list : differs_.lists) {
        for (std::int64_t i = 1; i <= list.count; ++i) {
            additem(list.combo, entryname(list.entries, index16(i)));
        }
    }
    if (differs_.locked()) {
        for (Button* button : {&cmdnew, &cmddelete}) {
            disable(*button);
            hide(*button);
        }
    }
    showentry(Family::cursor());
}

template <class Family>
void RecordEditor<Family>::filllist()
{
    clearlist(combo1);
    const std::int16_t n = count();
    for (std::int16_t i = 0; i < n; ++i) {
        const Record& record = Family::record(i);
        if (record.live != 0) {
            additem(combo1, record.name);
        }
    }
}

// The screen counts as unchanged only at the end, since the steps before raise change events.
template <class Family>
void RecordEditor<Family>::showentry(std::int16_t k)
{
    const Record& record = Family::record(k);
    showfields(record);
    showline(combo1, k);
    for (const CatalogueList& list : differs_.lists) {
        settext(list.combo, entryname(list.entries, record.*list.field));
        list.current = record.*list.field;
    }
    if (differs_.showown) {
        differs_.showown(record);
    }
    datachanged = 0;
}

// False where what was to be stored could not be: the screen then stays with what it shows.
template <class Family>
bool RecordEditor<Family>::checkstore()
{
    if (newentry != 0) {
        if (askyesno("Store new data?", differs_.newtitle) && !storeentry(count())) {
            return false;
        }
        newentry = 0;
        filllist();
    } else if (datachanged != 0 && viewonly == 0) {
        if (askyesno("Store changed data?", "Data changed") && !storeentry(Family::cursor())) {
            return false;
        }
    }
    datachanged = 0;
    return true;
}

// Fields that are not on the screen stay as the record's slot holds them.
template <class Family>
bool RecordEditor<Family>::storeentry(std::int16_t k)
{
    if (k < 0 || k >= count()) {
        if (!addrecord()) {
            return false;
        }
        k = index16(count() - 1);
    }
    Record& record = Family::records()[static_cast<std::size_t>(k)];
    storefields(record);
    for (const CatalogueList& list : differs_.lists) {
        record.*list.field = list.current;
    }
    if (differs_.storeown) {
        differs_.storeown(record);
    }
    ++timelinestate;
    if (olddate1 != record.date1) {
        movetoplace(k);
    }
    return true;
}

// Takes the slot behind the last record into use, and keeps one behind it.
template <class Family>
bool RecordEditor<Family>::addrecord()
{
    const std::int16_t added = count();
    if (added == mostrecords) {
        messagebox("The timeline is full: it holds " + numbertext(mostrecords) +
                   " records of this kind, the most that "
                   "it can. Answer No to go on without the new one.");
        return false;
    }
    insertmark(Family::isperson, added);
    Family::count() += 1;
    Family::records().resize(static_cast<std::size_t>(added) + 2);
    Family::records()[static_cast<std::size_t>(added)].live = -1;
    return true;
}

// Puts the record behind all of an equal or lower date1: out of its place to the end of the array, then down in one
// pass that always goes to the front. The used marks go with their records; the cursor keeps its number.
template <class Family>
void RecordEditor<Family>::movetoplace(std::int16_t k)
{
    auto& records = Family::records();
    const auto exchange = [&records](std::int16_t i) {
        const auto at = static_cast<std::size_t>(i);
        std::swap(records[at], records[at + 1]);
        std::swap(usedmarks[usedslot(Family::isperson, i)], usedmarks[usedslot(Family::isperson, add16(i, 1))]);
    };
    const std::int16_t last = index16(count() - 1);
    for (std::int16_t i = k; i < last; ++i) {
        exchange(i);
    }
    for (std::int16_t i = index16(last - 1); i >= 0; --i) {
        const auto at = static_cast<std::size_t>(i);
        if (records[at].date1 > records[at + 1].date1) {
            exchange(i);
        }
    }
    filllist();
}

template <class Family>
void RecordEditor<Family>::step(std::int16_t by)
{
    if (!checkstore()) {
        return;
    }
    const bool possible = by > 0 ? Family::cursor() < count() - 1 : Family::cursor() >= 1;
    if (!possible) {
        messagebox(by > 0 ? "Last in list" : "First in list");
        return;
    }
    Family::cursor() = add16(Family::cursor(), by);
    showentry(Family::cursor());
}

// The new record exists on the screen alone until it is stored. It starts with the first date and the Catalogue
// entries of the record before it.
template <class Family>
void RecordEditor<Family>::startnew()
{
    if (!checkstore()) {
        return;
    }
    settext(combo1, "?");
    const std::string date = numbertext(Family::record(Family::cursor()).date1);
    settext(date1, date);
    settext(date2, date);
    select(option[known]);
    select(option[approx]);
    for (const CatalogueList& list : differs_.lists) {
        settext(list.combo, entryname(list.entries, list.current));
    }
    settext(desc, "");
    datachanged = -1;
    newentry = -1;
}

template struct RecordEditor<PersonFamily>;
template struct RecordEditor<EventFamily>;

} // namespace brindor
