#pragma once

#include "quiz/showscor.h"
#include "support/gametest.h"
#include "timeline/usedmarks.h"

namespace brindor::tests {

// A GameTest in which someone reads the score screen and presses ok. What it said is kept.
class QuizTest : public GameTest {
protected:
    QuizTest()
    {
        host.persons["showscor"] = [this](toolkit::Screen& screen) {
            heading = find<toolkit::Label>(screen, "Label1").text;
            result = find<toolkit::TextBox>(screen, "Text1").text;
            score = find<toolkit::Label>(screen, "Label2").text;
            toolkit::userclick(find<toolkit::Button>(screen, "Command1"));
        };
    }

    // The marks of the five chosen items, in the order of their slots, and set to 100 beforehand.
    static std::vector<std::int16_t> chosenmarks()
    {
        std::vector<std::int16_t> marks;
        for (std::size_t i = 0; i < 5; ++i) {
            marks.push_back(usedmarks[usedslot(isperson, chosen[i])]);
        }
        return marks;
    }
    static void setmarks(std::int16_t mark) { usedmarks.assign(usedmarks.size(), mark); }

    std::string heading;
    std::string result;
    std::string score;
};

} // namespace brindor::tests
