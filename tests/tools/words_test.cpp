#include "authoring/words.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace brindor::authoring {

TEST(Words, FoldedTextsHaveNoCaseAndNoAccents)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"Malmö", "malmo"},           {"ÉCOLE", "ecole"},           {"Đại Việt", "dai viet"}, {"Kaʿba", "kaba"},
        {"Weiße Ærø", "weisse aero"}, {"e\xCC\x81t\xCC\xA3", "et"}, {"Шах 12", "шах 12"},     {"’tis", "'tis"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(folded(text), expected);
    }
}

TEST(Words, SlugsArePlainFileNames)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"Battle of Hastings", "battle-of-hastings"},
        {"Xi'an  &  Zhào's march!", "xian-zhaos-march"},
        {"  -Ärger-  ", "arger"},
        {"Шах", "sah"},
        {"?!", "item"},
        {"", "item"},
        {"../../etc", "etc"},
        {std::string(79, 'a') + " b", std::string(79, 'a')},
        {std::string(200, 'a'), std::string(80, 'a')},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(slug(text), expected) << text;
    }
}

TEST(Words, AWordOfTheNameIsFoundInADescription)
{
    struct Case {
        std::string name;
        std::string text;
        std::string shared;
    };
    const std::vector<Case> cases = {
        {"William the Conqueror", "A conqueror of England.", "conqueror"},
        {"Siege of Malmö", "The walls of MALMO fell.", "malmo"},
        {"Aztec Empire", "The Aztecs lost it.", "aztec"},
        {"King Lear", "A king with three daughters.", ""},
        {"Li Bo", "Li loved wine.", ""},
        {"Battle of Hastings", "A battle on a hill.", ""},
        {"Tang", "Tangible proof.", ""},
        {"Zhang Qian", "Zhang's road west.", "zhang"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(sharedword(c.name, c.text), c.shared) << c.name;
    }
}

TEST(Words, AYearIsANumberOfThreeOrFourDigits)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"In 1066 he landed.", "1066"},
        {"Year 476", "476"},
        {"-44 and 44", ""},
        {"1,000 ships", ""},
        {"12345 men", ""},
        {"500 pounds", ""},
        {"A 300-mile march", ""},
        {"Lost 1200 men in 1812.", "1812"},
        {"By 1520 he ruled", "1520"},
        {"The 3rd of 10", ""},
        {"1066, 1067", "1066"},
        {"Apollo 11 of 1969", "1969"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(yearin(text), expected) << text;
    }
}

TEST(Words, SlipsOfThePenAreCounted)
{
    const std::vector<std::tuple<std::string, std::string, std::size_t>> cases = {
        {"", "", 0},    {"britain", "britain", 0}, {"britian", "britain", 1}, {"brtain", "britain", 1},
        {"", "abc", 3}, {"kitten", "sitting", 3},  {"ab", "ba", 1},
    };
    for (const auto& [a, b, slips] : cases) {
        EXPECT_EQ(misspellings(a, b), slips) << a << ' ' << b;
    }
}

TEST(Words, ListsStandInTheOrderOfAnEnglishReader)
{
    std::vector<std::string> names = {"Zulu", "Éire", "aztecs", "Aztecs", "Egypt", "Đại Việt", "Finland"};
    std::sort(names.begin(), names.end(), listedbefore);
    EXPECT_EQ(names, (std::vector<std::string>{"Aztecs", "aztecs", "Đại Việt", "Egypt", "Éire", "Finland", "Zulu"}));
}

} // namespace brindor::authoring
