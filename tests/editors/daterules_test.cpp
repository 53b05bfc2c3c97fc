#include "editors/daterules.h"

#include "support/story.h"

#include <gtest/gtest.h>

namespace brindor {

// What is typed for the first date, and what it becomes in the person editor and in the event editor; then the first
// date before what is typed for the second. Below the first it becomes a copy of the first's text in one editor and
// its rounded value in the other; only the person editor has a lowest second date.
TEST(DateRules, EachEditorPutsADateIntoItsRange)
{
    const std::string table =
        "1066|1066|1066; -20000|-20000|-20000; 10000|10000|10000; -20001|-20000|-20000; 10001|10000|10000; abc|0|0; "
        "|0|0; 12abc|12|12; 44 BC|44|44; 1066.5|1066.5|1066; 1067.5|1067.5|1068; 12.50|12.5|12; 1e30|10000|10000; "
        "-40000|-20000|-20000; 10000.4|10000|10000; -0.4|-0.4|0; "
        "500|600|600|600; 500|500|500|500; 500|400|500|500; 500.5|400|500.5|500; 501.5|400|501.5|502; "
        "500.5|500.25|500.5|500; 500|20000|10000|10000; 20000|600|10000|10000; -20000|-20001|-20000|-20000; "
        "-25000|-22000|-20000|-22000; -25000|-40000|-20000|-25000; -44|x|0|0; 44 BC|12|44 BC|44; 1e4|5|1e4|10000";
    for (const std::string& row : tests::split(table, "; ")) {
        const std::vector<std::string> cells = tests::split(row, "|");
        std::string told = cells[0] + '|';
        if (cells.size() == 3) {
            told += persondates.date1(cells[0]) + '|' + eventdates.date1(cells[0]);
        } else {
            told += cells[1] + '|' + persondates.date2(cells[0], cells[1]) + '|' + eventdates.date2(cells[0], cells[1]);
        }
        EXPECT_EQ(told, row);
    }
}

} // namespace brindor
