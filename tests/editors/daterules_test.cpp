#include "editors/daterules.h"

#include <gtest/gtest.h>

namespace brindor {

TEST(DateRules, TheFirstDate)
{
    const struct {
        const char* typed;
        const char* person;
        const char* event;
    } cases[] = {{"1066", "1066", "1066"},
                 {"-20000", "-20000", "-20000"},
                 {"10000", "10000", "10000"},
                 {"-20001", "-20000", "-20000"},
                 {"10001", "10000", "10000"},
                 {"abc", "0", "0"},
                 {"", "0", "0"},
                 {"-", "0", "0"},
                 {"12abc", "12", "12"},
                 {"1 066", "1066", "1066"},
                 {"44 BC", "44", "44"},
                 {"-44", "-44", "-44"},
                 {"1e3", "1000", "1000"},
                 {"&H10", "16", "16"},
                 {"1066.5", "1066.5", "1066"},
                 {"1067.5", "1067.5", "1068"},
                 {"12.50", "12.5", "12"},
                 {"1e30", "10000", "10000"},
                 {"-1e30", "-20000", "-20000"},
                 {"40000", "10000", "10000"},
                 {"-40000", "-20000", "-20000"},
                 {"10000.4", "10000", "10000"},
                 {"1,5", "1", "1"},
                 {"-0.4", "-0.4", "0"},
                 {"007", "7", "7"}};
    for (const auto& c : cases) {
        EXPECT_EQ(persondates.date1(c.typed), c.person) << c.typed;
        EXPECT_EQ(eventdates.date1(c.typed), c.event) << c.typed;
    }
}

TEST(DateRules, TheSecondDateAgainstTheFirst)
{
    const struct {
        const char* date1;
        const char* typed;
        const char* person;
        const char* event;
    } cases[] = {
        {"500", "600", "600", "600"},
        {"500", "500", "500", "500"},
        {"500", "400", "500", "500"},
        {"500.5", "400", "500.5", "500"},
        {"501.5", "400", "501.5", "502"},
        {"500.5", "500.25", "500.5", "500"}, // 500 is below 500.5, which rounds to 500
        {"500", "20000", "10000", "10000"},
        {"500", "1e30", "10000", "10000"},
        {"20000", "600", "10000", "10000"},
        {"-20000", "-20001", "-20000", "-20000"},
        {"-25000", "-22000", "-20000", "-22000"}, // only the person editor has a limit of its own
        {"-25000", "-40000", "-20000", "-25000"},
        {"1e30", "5", "10000", "10000"},
        {"-44", "x", "0", "0"},
        {"44 BC", "12", "44 BC", "44"} // a copy of the text as it stands
    };
    for (const auto& c : cases) {
        EXPECT_EQ(persondates.date2(c.date1, c.typed), c.person) << c.date1 << ' ' << c.typed;
        EXPECT_EQ(eventdates.date2(c.date1, c.typed), c.event) << c.date1 << ' ' << c.typed;
    }
}

} // namespace brindor
