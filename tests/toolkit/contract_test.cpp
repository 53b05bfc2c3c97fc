#include "everything.h"
#include "person.h"
#include "toolkit/operations.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

// What a program may rely on, whichever host is in force: the same story gives the same events in the same order,
// with windows and without.
namespace brindor::tests {

namespace {

using namespace toolkit;

struct StageKind {
    const char* name;
    std::unique_ptr<Stage> (*make)();
};

class ContractTest : public testing::TestWithParam<StageKind> {
protected:
    // Plays the acts on one screen, closes it at the end, and gives back what it wrote down between the first size
    // and the end.
    std::string play(std::vector<std::function<void(Person&)>> acts)
    {
        Story story;
        for (auto& act : acts) {
            story.push_back({"all", std::move(act)});
        }
        story.push_back({"all", [this](Person&) { closescreen(all); }});
        log.clear();
        stage->play(all, std::move(story));
        const std::string begin = "all: resized to 9000\n";
        const std::string end = "all: unloaded\n";
        EXPECT_TRUE(log.starts_with(begin) && log.ends_with(end)) << log;
        return log.substr(begin.size(), log.size() - begin.size() - end.size());
    }

    std::unique_ptr<Stage> stage = GetParam().make();
    std::string log;
    Everything all{"all", log};
};

INSTANTIATE_TEST_SUITE_P(Hosts, ContractTest,
                         testing::Values(StageKind{"Memory", memorystage}, StageKind{"Windows", windowstage}),
                         [](const auto& kind) { return kind.param.name; });

TEST_P(ContractTest, AFieldLosesTheFocusBeforeTheClick)
{
    EXPECT_EQ(
        play({[this](Person& person) { person.type(all.line, "ab"); }, [this](Person& person) { person.click(all.go); },
              [this](Person& person) { person.click(all.line); },
              [this](Person& person) { person.pressaltkey(all.go); },
              [this](Person& person) { person.click(all.lines); },
              [this](Person& person) { person.clickline(all.list, 1); }}),
        "all: line is 'a'\n"
        "all: line is 'ab'\n"
        "all: line left\n"
        "all: go clicked\n"
        "all: line left\n"
        "all: go clicked\n"
        "all: lines left\n"
        "all: line 1 picked\n");
}

TEST_P(ContractTest, ATextThatIsSetRaisesChangeWhereItChanges)
{
    all.go.click = [this] {
        settext(all.line, "5");
        settext(all.line, "5");
        settext(all.lines, "one\r\ntwo");
        settext(all.lines, "one\r\ntwo");
    };
    EXPECT_EQ(play({[this](Person& person) { person.click(all.go); },
                    [this](Person& person) { person.type(all.lines, "!"); }}),
              "all: line is '5'\n"
              "all: lines are 'one\r\ntwo'\n"
              "all: lines are 'one\r\ntwo!'\n");
}

TEST_P(ContractTest, AChangeHandlerMayCorrectWhatIsTyped)
{
    all.line.change = [this] {
        all.note("line is '" + all.line.text + "'");
        if (all.line.text.size() > 1) {
            settext(all.line, "9");
        }
    };
    EXPECT_EQ(play({[this](Person& person) { person.type(all.line, "25"); },
                    [this](Person& person) { person.type(all.line, "7"); }}),
              "all: line is '2'\n"
              "all: line is '25'\n"
              "all: line is '9'\n"
              "all: line is '97'\n"
              "all: line is '9'\n");
}

TEST_P(ContractTest, OptionsExcludeEachOther)
{
    all.go.click = [this] {
        select(all.options[0]);
        select(all.options[0]);
    };
    EXPECT_EQ(play({[this](Person& person) { person.click(all.go); },
                    [this](Person& person) { person.click(all.options[1]); },
                    [this](Person& person) { person.click(all.options[1]); },
                    [this](Person& person) { person.pressspace(all.options[1]); },
                    [this](Person& person) { person.click(all.go); }}),
              "all: option 0 clicked\n"
              "all: option 1 clicked\n"
              "all: option 1 clicked\n"
              "all: option 1 clicked\n"
              "all: option 0 clicked\n");
    EXPECT_TRUE(all.options[0].selected);
    EXPECT_FALSE(all.options[1].selected);
}

TEST_P(ContractTest, APressOfAnyMouseButtonAnswersAndTheKeyboardOnlySelects)
{
    all.options[0].press = [this] { all.note("option 0 pressed"); };
    all.options[0].click = nullptr;
    EXPECT_EQ(play({[this](Person& person) { person.click(all.options[0]); },
                    [this](Person& person) { person.rightpress(all.options[0]); },
                    [this](Person& person) { person.pressspace(all.options[0]); }}),
              "all: option 0 pressed\n"
              "all: option 0 pressed\n");
    EXPECT_TRUE(all.options[0].selected);
}

TEST_P(ContractTest, EachClickOnALineCounts)
{
    EXPECT_EQ(play({[this](Person& person) { person.clickline(all.list, 2); },
                    [this](Person& person) { person.clickline(all.list, 2); },
                    [this](Person& person) { person.doubleclickline(all.list, 0); }}),
              "all: line 2 picked\n"
              "all: line 2 picked\n"
              "all: line 0 picked\n"
              "all: line 0 picked\n");
}

TEST_P(ContractTest, ALineCanBePickedAgainInARebuiltList)
{
    all.list.pick = [this](std::int16_t at) {
        all.note(std::to_string(at) + " is " + all.list.lines[static_cast<std::size_t>(at)]);
        std::vector<std::string> lines = all.list.lines;
        std::swap(lines[static_cast<std::size_t>(at)], lines[static_cast<std::size_t>(at - 1)]);
        clearlist(all.list);
        for (const std::string& line : lines) {
            additem(all.list, line);
        }
    };
    EXPECT_EQ(play({[this](Person& person) { person.clickline(all.list, 2); },
                    [this](Person& person) { person.clickline(all.list, 2); },
                    [this](Person& person) { person.doubleclickline(all.list, 1); }}),
              "all: 2 is two\n"
              "all: 2 is one\n"
              "all: 1 is one\n"
              "all: 1 is zero\n");
}

TEST_P(ContractTest, AClickTogglesALineWhereManyCanBeSelected)
{
    all.list.multiselect = true;
    selectline(all.list, 0, true);
    EXPECT_EQ(play({[this](Person& person) { person.clickline(all.list, 0); },
                    [this](Person& person) { person.clickline(all.list, 1); },
                    [this](Person& person) { person.doubleclickline(all.list, 2); }}),
              "all: line 0 picked\n"
              "all: line 1 picked\n"
              "all: line 2 picked\n"
              "all: line 2 picked\n");
    EXPECT_EQ(all.list.selected, (std::vector<bool>{false, true, false}));
}

TEST_P(ContractTest, AComboKnowsAPickFromATyping)
{
    EXPECT_EQ(play({[this](Person& person) { person.pickline(all.combo, 1); },
                    [this](Person& person) { person.type(all.combo, "!"); },
                    [this](Person& person) { person.click(all.go); }}),
              "all: combo line 1 picked\n"
              "all: go clicked\n");
    EXPECT_EQ(all.combo.text, "Bea!");
    EXPECT_EQ(all.combo.position, 1);
}

// Only Return picks what was typed: the same name, or the only one that holds it. It never presses the default button.
TEST_P(ContractTest, ReturnInAComboPicksTheNameThatIsMeant)
{
    all.defaultbutton = &all.go;
    const auto type = [this](const char* text) {
        return [this, text](Person& person) { person.type(all.combo, text); };
    };
    const auto enter = [this](Person& person) { person.enter(all); };
    const auto empty = [this](Person&) { settext(all.combo, ""); };
    EXPECT_EQ(play({type("Zz"), [this](Person& person) { person.click(all.go); }, empty, type("a"), enter, empty,
                    type("bea"), enter, empty, type("i"), enter, type("!"), enter}),
              "all: go clicked\n"
              "all: combo line 1 picked\n"
              "all: combo line 2 picked\n");
    EXPECT_EQ(all.combo.text, "Cid!");
}

TEST_P(ContractTest, ABarIsDraggedOntoItsTarget)
{
    EXPECT_EQ(play({[this](Person& person) { person.press(all.bars[0]); },
                    [this](Person& person) { person.letgo(all.bars[0], all.target); },
                    [this](Person& person) { person.press(all.bars[1]); },
                    [this](Person& person) { person.letgo(all.bars[1], all.go); },
                    [this](Person& person) { person.click(all.target); }}),
              "all: bar(0) pressed\n"
              "all: drop of bar(0)\n"
              "all: bar(1) pressed\n");
    EXPECT_EQ(all.dragged, nullptr);
}

TEST_P(ContractTest, ABarAndItsTargetAreClickedOneAfterTheOther)
{
    EXPECT_EQ(
        play({[this](Person& person) { person.click(all.bars[0]); },
              [this](Person& person) { person.click(all.bars[1]); }, [this](Person& person) { person.click(all.go); },
              [this](Person& person) { person.click(all.target); },
              [this](Person& person) { person.click(all.target); }}),
        "all: bar(0) pressed\n"
        "all: bar(0) clicked\n"
        "all: bar(1) pressed\n"
        "all: bar(1) clicked\n"
        "all: go clicked\n"
        "all: drop of bar(1)\n");
}

TEST_P(ContractTest, EscapePutsABarDown)
{
    all.escapecloses = true;
    EXPECT_EQ(
        play({[this](Person& person) { person.click(all.bars[0]); }, [this](Person& person) { person.escape(all); },
              [this](Person& person) { person.click(all.target); },
              [this](Person& person) { person.press(all.bars[1]); }, [this](Person& person) { person.escape(all); },
              [this](Person& person) { person.letgo(all.bars[1], all.target); },
              [this](Person& person) { person.pressspace(all.bars[0]); },
              [this](Person& person) { person.click(all.target); }}),
        "all: bar(0) pressed\n"
        "all: bar(0) clicked\n"
        "all: bar(1) pressed\n"
        "all: bar(0) clicked\n"
        "all: drop of bar(0)\n");
}

TEST_P(ContractTest, ASpinStepsTheNumberOfItsField)
{
    EXPECT_EQ(
        play({[this](Person& person) { person.type(all.line, "8"); },
              [this](Person& person) { person.pressup(all.line); }, [this](Person& person) { person.stepup(all.spin); },
              [this](Person& person) { person.stepup(all.spin); }}),
        "all: line is '8'\n"
        "all: line is '9'\n"
        "all: line left\n"
        "all: line is '10'\n");
}

TEST_P(ContractTest, WhatCannotBeReachedDoesNothing)
{
    hide(all.options[0]);
    disable(all.list);
    hide(all.bars[0]);
    EXPECT_EQ(play({[this](Person& person) { person.click(all.options[0]); },
                    [this](Person& person) { person.clickline(all.list, 1); },
                    [this](Person& person) { person.click(all.bars[0]); },
                    [this](Person& person) { person.click(all.target); },
                    [this](Person&) {
                        show(all.options[0]);
                        disable(all.go);
                    },
                    [this](Person& person) { person.click(all.options[0]); },
                    [this](Person& person) { person.pressaltkey(all.go); }}),
              "all: option 0 clicked\n");
}

TEST_P(ContractTest, AFieldThatIsDisabledIsNotTold)
{
    all.go.click = [this] {
        all.note("go clicked");
        disable(all.lines);
    };
    EXPECT_EQ(play({[this](Person& person) { person.type(all.line, "1"); }, [this](Person&) { disable(all.line); },
                    [this](Person& person) { person.click(all.go); }}),
              "all: line is '1'\n"
              "all: go clicked\n");
}

TEST_P(ContractTest, ReturnAndEscape)
{
    Everything top("top", log);
    top.defaultbutton = &top.go;
    top.escapecloses = true;
    all.go.click = [&top] { showmodal(top); };
    stage->play(all, {{"all", [this](Person& person) { person.click(all.line); }},
                      {"all", [this](Person& person) { person.enter(all); }},
                      {"all", [this](Person& person) { person.escape(all); }},
                      {"all", [this](Person& person) { person.click(all.go); }},
                      {"top", [&top](Person& person) { person.type(top.line, "x"); }},
                      {"top", [&top](Person& person) { person.enter(top); }},
                      {"top", [&top](Person& person) { person.escape(top); }},
                      {"all", [this](Person& person) { person.close(all); }}});
    EXPECT_EQ(log, "all: resized to 9000\n"
                   "all: line left\n"
                   "top: resized to 9000\n"
                   "top: line is 'x'\n"
                   "top: line left\n"
                   "top: go clicked\n"
                   "top: unloaded\n"
                   "all: unloaded\n");
}

TEST_P(ContractTest, ScreensStandOnScreens)
{
    Everything second("second", log);
    Everything third("third", log);
    const auto opens = [](Everything& lower, Everything& upper) {
        lower.go.click = [&lower, &upper] {
            showmodal(upper);
            lower.note("goes on");
        };
    };
    opens(all, second);
    opens(second, third);
    third.go.click = [&third] { closescreen(third); };
    stage->play(all, {{"all", [this](Person& person) { person.click(all.go); }},
                      {"second", [this](Person& person) { person.click(all.options[0]); }},
                      {"second", [this](Person& person) { person.close(all); }},
                      {"second", [&](Person& person) { person.click(second.go); }},
                      {"third", [this](Person& person) { person.type(all.line, "x"); }},
                      {"third", [&](Person& person) { person.click(second.go); }},
                      {"third", [&](Person& person) { person.click(third.go); }},
                      {"second", [&](Person& person) { person.click(second.options[0]); }},
                      {"second", [&](Person& person) { person.close(second); }},
                      {"all", [this](Person& person) { person.click(all.options[0]); }},
                      {"all", [this](Person& person) { person.close(all); }}});
    EXPECT_EQ(log, "all: resized to 9000\n"
                   "second: resized to 9000\n"
                   "third: resized to 9000\n"
                   "third: unloaded\n"
                   "second: goes on\n"
                   "second: option 0 clicked\n"
                   "second: unloaded\n"
                   "all: goes on\n"
                   "all: option 0 clicked\n"
                   "all: unloaded\n");
}

TEST_P(ContractTest, AMessageStopsTheScreenBelow)
{
    all.line.leave = [this] { all.note("line left"); };
    all.go.click = [this] {
        messagebox("Read this");
        const bool first = askyesno("Sure?", "Question");
        const bool second = askyesno("Really?", "Question");
        all.note("answers " + std::to_string(first) + ' ' + std::to_string(second));
    };
    stage->play(all, {{"all", [this](Person& person) { person.click(all.line); }},
                      {"all", [this](Person& person) { person.click(all.go); }},
                      {"message", [this](Person& person) { person.click(all.options[0]); }},
                      {"message", [this](Person& person) { person.close(all); }},
                      {"message", [](Person& person) { person.answer(true); }},
                      {"message", [](Person& person) { person.answer(true); }},
                      {"message", [](Person& person) { person.answer(false); }},
                      {"all", [this](Person& person) { person.close(all); }}});
    EXPECT_EQ(log, "all: resized to 9000\n"
                   "all: line left\n"
                   "all: answers 1 0\n"
                   "all: unloaded\n");
}

TEST_P(ContractTest, APersonsNewSizeIsTold)
{
    stage->play(all, {{"all", [this](Person& person) { person.resize(all, 700, 500); }},
                      {"all", [this](Person& person) { person.resize(all, 700, 500); }},
                      {"all", [this](Person&) { resizeto(all, 9001, 8001); }},
                      {"all", [this](Person& person) { person.close(all); }}});
    EXPECT_EQ(log, "all: resized to 9000\n"
                   "all: resized to 10560\n"
                   "all: resized to 9001\n"
                   "all: unloaded\n");
    EXPECT_EQ(all.width, 9001);
    EXPECT_EQ(all.height, 8001);
}

TEST_P(ContractTest, AScreenThatClosesAtOnceIsNeverShown)
{
    all.load = [this] { closescreen(all); };
    stage->play(all, {});
    EXPECT_EQ(log, "all: unloaded\n");
}

} // namespace

} // namespace brindor::tests
