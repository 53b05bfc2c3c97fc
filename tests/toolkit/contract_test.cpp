#include "story.h"

#include <gtest/gtest.h>

// What a program may rely on, whichever host is in force: the same story gives the same events in the same order,
// with windows and without.
namespace brindor::tests {

using namespace toolkit;

const Story stories[] = {
    {"AClickComesBeforeTheFieldHasLostTheFocus",
     {},
     "type line ab; click go; click line; alt go; click lines; pick list 1",
     "line=a, line=ab, line left, go, line left, go, lines left, list 1"},
    {"AClickReachesWhatLosingTheFocusHasHidden", [](Everything& all) { all.line.leave = [&all] { hide(all.go); }; },
     "click line; click go", ""},
    {"ASetTextRaisesNoChangeOrOneTooMany",
     {},
     "settext line 5; settext lines one\r\ntwo; settext line 5; settext lines one\r\ntwo; type lines !",
     "line=5, lines=one\r\ntwo, lines=one\r\ntwo!"},
    {"AChangeHandlerCannotCorrectWhatIsTyped",
     [](Everything& all) {
         all.line.change = [&all] {
             all.note(all.line.text);
             if (all.line.text.size() > 1) {
                 settext(all.line, "9");
             }
         };
     },
     "type line 25; type line 7", "2, 25, 9, 97, 9"},
    {"ReadOnlyTextIsTyped", [](Everything& all) { all.line.readonly = all.lines.readonly = true; },
     "type line x; type lines x", "line left"},
    {"TwoOptionsOfAGroupAreOnOrAnswerTwice",
     {},
     "select option(0); select option(0); click option(1); click option(1); click inside; space option(1);"
     " select option(0); say option(0); say option(1); say inside",
     "option(0), option(1), option(1), inside, option(1), option(0), option(0) on, option(1) off, inside on"},
    {"AnOptionAnswersToTheKeyboardOrToOneMouseButtonOnly",
     [](Everything& all) {
         all.options[0].press = [&all] { all.note("pressed"); };
         all.options[0].click = nullptr;
     },
     "click option(0); right option(0); say option(0); space option(0); say option(0)",
     "pressed, pressed, option(0) off, option(0) on"},
    {"AClickOnALineIsLost", {}, "pick list 2; pick list 2; twice list 0", "list 2, list 2, list 0, list 0"},
    {"ALineOfARebuiltListCannotBePicked", [](Everything& all) { all.pickpushesup(); },
     "pick list 2; pick list 2; twice list 1", "two up, one up, one up, zero up"},
    {"AClickTogglesNoLineOrAnotherTooOrAClearedListKeepsASelection",
     [](Everything& all) {
         all.list.multiselect = true;
         selectline(all.list, 0, true);
         selectline(all.list, 3, true); // there is none
     },
     "pick list 0; pick list 1; twice list 2; say list; clear list; say list",
     "list 0, list 1, list 2, list 2, list 010, list "},
    {"TypingInAComboCountsAsAPick",
     {},
     "pick combo 1; type combo !; say combo; clear combo; say combo",
     "combo 1, combo=Bea! at 1, combo= at -1"},
    {"ReturnInAComboPicksNoNameOrOneThatIsNotMeant",
     [](Everything& all) {
         all.defaultbutton = &all.go;
         for (const char* name : {"ada", "Bead"}) {
             additem(all.combo, name);
         }
     },
     "return; type combo Zz; return; settext combo; return; type combo d; return; settext combo; type combo bea;"
     " return; settext combo; type combo i; return; type combo !; return; settext combo; type combo ada; return; say "
     "combo",
     "go, combo 1, combo 2, combo 3, combo=ada at 3"},
    {"ABarIsDroppedElsewhereOrStaysInTheHand",
     {},
     "press bar(0); letgo target; press bar(1); letgo go; click target",
     "bar(0) pressed, drop of bar(0), bar(1) pressed"},
    {"TwoBarsAreInTheHandAfterTwoClicks",
     {},
     "click bar(0); click bar(1); click go; click target; click target",
     "bar(0) pressed, bar(0) clicked, bar(1) pressed, bar(1) clicked, go, drop of bar(1)"},
    {"EscapeClosesTheScreenOfABarThatItPutsDown", [](Everything& all) { all.escapecloses = true; },
     "click bar(0); escape; click target; press bar(1); escape; letgo target; press bar(1); escape; letgo bar(1); "
     "space bar(0); click target",
     "bar(0) pressed, bar(0) clicked, bar(1) pressed, bar(1) pressed, bar(0) clicked, drop of bar(0)"},
    {"AStepIsLostOrTakesTheFocusFromItsField",
     {},
     "type line 8; up line; stepup spin; stepup spin",
     "line=8, line=9, line left, line=10"},
    {"AStepLeavesTheRangeOrADisabledFieldIsStepped",
     [](Everything& all) {
         all.spin.low = 1;
         all.spin.high = 2;
     },
     "stepup spin; stepup spin; stepup spin; stepdown spin; stepdown spin; settext line 99999; stepup spin; disable "
     "line;"
     " stepdown spin",
     "line=1, line=2, line=1, line=99999, line=2"},
    {"AHiddenOrDisabledControlIsReached",
     {},
     "hide option(0); disable list; hide bar(0); hide box; click option(0); pick list 1; click bar(0); click target;"
     " click inside; show option(0); disable go; click option(0); alt go; show box; click inside; disable box; click "
     "inside",
     "option(0), inside"},
    {"AFieldThatIsDisabledIsToldThatItLostTheFocus",
     [](Everything& all) { all.go.click = [&all] { disable(all.lines); }; },
     "type line 1; disable line; click go; click lines", "line=1"},
    {"ReturnOrEscapeActsWhereItShouldNot",
     [](Everything& all) {
         all.goopens();
         all.above->defaultbutton = &all.above->go;
         all.above->escapecloses = true;
     },
     "click line; return; escape; click go; second: type line x; return; escape; all: close",
     "line left, second.resized to 9000, second.line=x, second.line left, second.go, second.unloaded, goes on"},
    {"AScreenBelowIsReachedOrGoesOnTooEarly",
     [](Everything& all) {
         all.goopens();
         all.above->goopens();
         all.above->above->go.click = [&all] { closescreen(*all.above->above); };
     },
     "click go; second: click all.option(0); click go; third: type all.line x; click go; second: click option(0); "
     "close;"
     " all: click option(0); close",
     "second.resized to 9000, third.resized to 9000, third.unloaded, second.goes on, second.option(0), second.unloaded,"
     " goes on, option(0)"},
    {"AMessageLetsTheScreenBelowBeReached",
     [](Everything& all) {
         all.go.click = [&all] {
             messagebox("Read this");
             for (const char* question : {"Sure?", "Really?"}) {
                 all.note(askyesno(question, "Question") ? "yes" : "no");
             }
         };
     },
     "click line; click go; message: click all.option(0); close; yes; yes; no; all: close", "line left, yes, no"},
    {"ANewSizeIsNotToldOrToldTwice",
     {},
     "resize 700; resize 700; sizeto 9001; sizeto 9001",
     "resized to 10560, resized to 9001"},
};

class ContractTest : public testing::TestWithParam<Story> {};

INSTANTIATE_TEST_SUITE_P(Catches, ContractTest, testing::ValuesIn(stories),
                         [](const auto& story) { return std::string(story.param.fault); });

TEST_P(ContractTest, Story)
{
    check(GetParam());
}

} // namespace brindor::tests
