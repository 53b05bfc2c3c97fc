#pragma once

#include "base/numbers.h"
#include "editors/eentry.h"
#include "editors/pentry.h"
#include "support/programtest.h"
#include "support/timelines.h"
#include "timeline/families.h"
#include "timeline/usedmarks.h"
#include "toolkit/user.h"

#include <functional>
#include <string>
#include <vector>

namespace brindor::tests {

struct People {
    using Family = PersonFamily;
    using Other = EventFamily;
    using Editor = PEntry;
    static constexpr const char* screen = "PEntry";
    static constexpr const char* caption = "People Entry";
    static constexpr const char* newtitle = "New person";
    static constexpr const char* deletequestion = "Delete this person?";
    static void open() { showpeople(); }
};

struct Events {
    using Family = EventFamily;
    using Other = PersonFamily;
    using Editor = EEntry;
    static constexpr const char* screen = "eEntry";
    static constexpr const char* caption = "Events Entry";
    static constexpr const char* newtitle = "New event";
    static constexpr const char* deletequestion = "Delete this event?";
    static void open() { showevents(); }
};

using Twins = testing::Types<People, Events>;

// A test of what both editors do: `Twin` is People or Events.
template <class Twin>
class EditorTest : public ProgramTest {
protected:
    using Family = typename Twin::Family;
    using Record = typename Family::Record;
    using Editor = typename Twin::Editor;

    EditorTest()
    {
        Editor::newentry = 0;
        setcatalogues({"Faction 1", "Faction 2", "Faction 3"}, {"Occupation 1", "Occupation 2", "Occupation 3"},
                      {"Group 1", "Group 2", "Group 3"}, {"Nation 1", "Nation 2", "Nation 3"});
    }
    ~EditorTest() override { Editor::newentry = 0; }

    // Records "A", "B" ... of these first dates, with the marks 1, 2 ...; two items of the other family with 101, 102.
    static void setrecords(const std::vector<std::int16_t>& dates)
    {
        std::vector<Record> records(dates.size());
        for (std::size_t i = 0; i < dates.size(); ++i) {
            records[i].name = std::string(1, static_cast<char>('A' + i));
            records[i].date1 = dates[i];
            records[i].date2 = dates[i];
            records[i].desc1 = "Line of " + records[i].name;
            records[i].live = 1;
        }
        if constexpr (std::is_same_v<Record, PersonRec>) {
            settimeline(std::move(records), {event("X", year(1)), event("Y", year(2))});
        } else {
            settimeline({person("X", year(1)), person("Y", year(2))}, std::move(records));
        }
        for (std::int16_t i = 0; i < Family::count(); ++i) {
            usedmarks[usedslot(Family::isperson, i)] = index16(i + 1);
        }
        usedmarks[usedslot(Twin::Other::isperson, 0)] = 101;
        usedmarks[usedslot(Twin::Other::isperson, 1)] = 102;
    }

    // The records with their first dates and marks: "A 100:1, B 200:2 / 101 102". The marks of the other family stand
    // behind the stroke.
    static std::string records()
    {
        std::string text;
        for (std::int16_t i = 0; i < Family::count(); ++i) {
            const Record& record = Family::record(i);
            text += (i == 0 ? "" : ", ") + record.name + ' ' + std::to_string(record.date1) + ':' +
                    std::to_string(usedmarks[usedslot(Family::isperson, i)]);
        }
        EXPECT_EQ(usedmarks.size(), static_cast<std::size_t>(npeople + nevents) + 1);
        return text + " / " + std::to_string(usedmarks[usedslot(Twin::Other::isperson, 0)]) + ' ' +
               std::to_string(usedmarks[usedslot(Twin::Other::isperson, 1)]);
    }

    // Opens the editor, lets `act` do something on it, and closes it from its title bar.
    void visit(const std::function<void(Editor&)>& act)
    {
        host.persons[Twin::screen] = [&act](toolkit::Screen& screen) {
            act(static_cast<Editor&>(screen));
            toolkit::userclose(screen);
        };
        Twin::open();
    }

    // What was asked and said since the last call: "title: text", a line each.
    std::string said()
    {
        std::string text;
        for (const toolkit::Message& message : host.messages) {
            text += message.title + ": " + message.text + '\n';
        }
        host.messages.clear();
        return text;
    }

    // The fields as they stand on the screen.
    static std::string shown(const Editor& s)
    {
        return s.combo1.text + '|' + s.date1.text + '|' + s.date2.text + '|' + s.desc.text;
    }
};

} // namespace brindor::tests
