#include "authoring/words.h"
#include "tools/sample.h"

namespace brindor::authoring {

using tests::each;

TEST(Words, FoldedTextsHaveNoCaseAndNoAccents)
{
    EXPECT_EQ(
        each(folded, {"Malmö", "ÉCOLE", "Đại Việt", "Kaʿba", "Weiße Ærø", "e\xCC\x81t\xCC\xA3", "Шах 12", "’tis"}),
        "malmo|ecole|dai viet|kaba|weisse aero|et|шах 12|'tis");
}

TEST(Words, SlugsArePlainFileNames)
{
    EXPECT_EQ(
        each(slug, {"Battle of Hastings", "Xi'an  &  Zhào's march!", "  -Ärger-  ", "Шах", "?!", "", "../../etc"}),
        "battle-of-hastings|xian-zhaos-march|arger|sah|item|item|etc");
    const std::string most(80, 'a');
    EXPECT_EQ(each(slug, {most.substr(1) + " b", most + 'a'}), most.substr(1) + '|' + most);
}

TEST(Words, AWordOfTheNameIsFoundInADescription)
{
    const std::vector<std::array<const char*, 3>> cases = {
        {"William the Conqueror", "A conqueror of England.", "conqueror"},
        {"Siege of Malmö", "The walls of MALMO fell.", "malmo"},
        {"Aztec Empire", "The Aztecs lost it.", "aztec"},
        {"King Lear", "A king with three daughters.", ""},
        {"Li Bo", "Li loved wine.", ""},
        {"Battle of Hastings", "A battle on a hill.", ""},
        {"Tang", "Tangible proof.", ""},
        {"Zhang Qian", "Zhang's road west.", "zhang"},
    };
    for (const auto& [name, text, shared] : cases) {
        EXPECT_EQ(sharedword(name, text), shared) << name;
    }
}

TEST(Words, AYearIsANumberOfThreeOrFourDigitsThatCountsNothing)
{
    EXPECT_EQ(each(yearin, {"In 1066 he landed.", "Year 476", "Lost 1200 men in 1812.", "By 1520 he ruled",
                            "1066, 1067", "Apollo 11 of 1969"}),
              "1066|476|1812|1520|1066|1969");
    EXPECT_EQ(
        each(yearin, {"-44 and 44", "1,000 ships", "12345 men", "500 pounds", "A 300-mile march", "The 3rd of 10"}),
        "|||||");
}

TEST(Words, SlipsOfThePenAreCounted)
{
    const auto slips = [](const std::string& text) { return std::to_string(misspellings(text, "britain")); };
    EXPECT_EQ(each(slips, {"britain", "britian", "brtain", "brittain", "bretain", "rbitani", "", "spain"}),
              "0|1|1|1|1|2|7|4");
}

TEST(Words, ListsStandInTheOrderOfAnEnglishReader)
{
    std::vector<std::string> names = {"Zulu", "Éire", "aztecs", "Aztecs", "Egypt", "Đại Việt", "Finland"};
    std::sort(names.begin(), names.end(), listedbefore);
    EXPECT_EQ(names, (std::vector<std::string>{"Aztecs", "aztecs", "Đại Việt", "Egypt", "Éire", "Finland", "Zulu"}));
}

} // namespace brindor::authoring
