#include "base/numbers.h"
#include "base/text.h"
#include "support/story.h"

#include <cmath>

namespace brindor {

// What a text is as a number with a fraction, as a whole number ("-" for none), and as the whole number at its head.
TEST(Text, NumbersOfEveryForm)
{
    const std::string table =
        "|0 - 0; abc|0 - 0; -|0 - 0; .|0 - 0; 12abc|12 - 12;  1 066 |1066 - 1; 1\t0\n66|1066 - 1; "
        "-44|-44 -44 -44; - 4 4|-44 - 0; 44 BC|44 - 44; +7|7 7 7; 12.50|12.5 - 12; .5|0.5 - 0; 5.|5 - 5; "
        "1.2.3|1.2 - 1; 1e3|1000 - 1; 1d3|1000 - 1; 1E-1|0.1 - 1; 2e|2 - 2; 2e+|2 - 2; 2e+x|2 - 2; 12,5|12 - 12; "
        "&H10|16 - 0; &hff|255 - 0; &O17|15 - 0; &O18|1 - 0; &HG|0 - 0; &|0 - 0; &X1|0 - 0; --5|0 - 0; "
        "1e-999|0 - 1; 0x10|0 - 0; +|0 - 0; +-1|0 - 0; 1.0|1 - 1;  1|1 - 1; -00012|-12 -12 -12;   \t-3x|-3 - -3; "
        "250 300|250300 - 250";
    for (const std::string& row : tests::split(table, "; ")) {
        const std::string text = row.substr(0, row.find('|'));
        const std::optional<std::int64_t> whole = wholenumber(text);
        EXPECT_EQ(text + '|' + decimaltext(textvalue(text)) + ' ' + (whole ? numbertext(*whole) : "-") + ' ' +
                      numbertext(leadingnumber(text)),
                  row);
    }
    EXPECT_GT(textvalue("1e999"), 1e300);
    EXPECT_LT(textvalue("-1e999"), -1e300);
    EXPECT_GT(textvalue(std::string(400, '9')), 1e300);
    EXPECT_LT(textvalue("0." + std::string(400, '0') + "1"), 1e-300);
    EXPECT_EQ(wholenumber("99999999999999999999"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(wholenumber("-99999999999999999999"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(decimaltext(-0.0) + ' ' + decimaltext(0.1 + 0.2), "0 0.3"); // 15 significant digits
}

TEST(Text, BytesAreUtf8WhereTheyCanBe)
{
    EXPECT_EQ(toutf8("Caf\xC3\xA9"), "Caf\xC3\xA9");
    EXPECT_EQ(toutf8("Caf\xE9 \x80\x81"), "Caf\xC3\xA9 \xE2\x82\xAC\xEF\xBF\xBD"); // é, the euro sign, no meaning
    for (const char* bad : {"\xC3", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xF4\x90\x80\x80",
                            "\x80", "\xE2\x82"}) {
        EXPECT_FALSE(isutf8(bad));
        EXPECT_TRUE(isutf8(toutf8(bad)));
    }
    const char* outermost = "\xC2\x80 \xDF\xBF \xE0\xA0\x80 \xEF\xBF\xBF \xF0\x90\x80\x80 \xF4\x8F\xBF\xBF";
    EXPECT_TRUE(isutf8(outermost));
    EXPECT_EQ(charactercount(outermost), 11U);
    EXPECT_EQ(charactercount("Garc\xED?"), 6U);
    EXPECT_EQ(withoutmark("\xEF\xBB\xBF?"), "?");
}

TEST(Numbers, IntoSixteenBits)
{
    EXPECT_EQ(toint16(32767), 32767);
    EXPECT_FALSE(toint16(32768));
    EXPECT_EQ(toint16(-32768), -32768);
    EXPECT_FALSE(toint16(-32769));
    const std::pair<double, std::int16_t> cases[] = {{12.5, 12},      {13.5, 14}, {-12.5, -12},
                                                     {-13.5, -14},    {0.5, 0},   {1e30, 32767},
                                                     {-1e30, -32768}, {2.49, 2},  {std::nan(""), 0}};
    for (const auto& [number, rounded] : cases) {
        EXPECT_EQ(roundtoint16(number), rounded) << number;
    }
    EXPECT_EQ(clampvalue(0, 1, 10) * 100 + clampvalue(25, 1, 10), 110);
    EXPECT_EQ(clampvalue(5, 9, 3), 3);             // the high bound has the last word
    EXPECT_EQ(clampvalue(400, 500.5, 10000), 500); // a half to the even neighbour
    EXPECT_EQ(add16(32760, 10), 32767);
    EXPECT_EQ(add16(-32760, -10), -32768);
}

} // namespace brindor
