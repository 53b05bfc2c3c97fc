#pragma once

#include "editors/recordfields.h"
#include "timeline/families.h"
#include "toolkit/controls.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace brindor {

// What the person editor and the event editor share: the name list, the cursor, the two modes, and how a record is
// shown, stored, added, moved and deleted. Each screen adds its own fields and says what differs.
//
// While viewonly is 1 the screen browses: what is typed is dropped when the screen moves on. While it is 0 it offers
// to store what has changed.
template <class Family>
struct RecordEditor : RecordFields {
    using Record = typename Family::Record;

    // 0 or -1: the screen holds a new record that is not stored. It outlives a screen that is closed from its title
    // bar; the next one then offers to store what it shows.
    static std::int16_t newentry;

protected:
    // A list of Catalogue names. Picking a line sets `current`; what is typed is ignored.
    struct CatalogueList {
        toolkit::Combo& combo;
        std::int16_t& current; // index into the Catalogue
        const Catalogue& entries;
        const std::int16_t& count;
        std::int16_t Record::*field;
    };

    struct Differences {
        std::string newtitle; // of the question whether to store a new record
        void (*deleteitem)(std::int16_t k) = nullptr;
        const DateRules* dates = nullptr;
        bool (*locked)() = nullptr; // whether New and Delete are out of reach
        std::vector<CatalogueList> lists;
        std::function<void(const Record&)> showown; // the fields that only this family has
        std::function<void(Record&)> storeown;
    };

    RecordEditor() = default;

    void begin(Differences differences); // connects the events

private:
    static std::int16_t count();
    void start();
    void filllist();
    void showentry(std::int16_t k);
    bool checkstore();
    bool storeentry(std::int16_t k);
    bool addrecord();
    void movetoplace(std::int16_t k);
    void step(std::int16_t by);
    void startnew();

    Differences differs_;
};

extern template struct RecordEditor<PersonFamily>;
extern template struct RecordEditor<EventFamily>;

} // namespace brindor
