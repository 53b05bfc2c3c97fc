#include "authoring/words.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace brindor::authoring {

TEST(Words, FoldedTextsHaveNoCaseAndNoAccents)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"Malmö", "malmo"},           {"ÉCOLE", "ecole"},           {"Đại Việt", "dai viet"}, {"Kaʿba", "kaba"},
        {"Weiße Ærø", "weisse aero"}, {"e\xCC\x81t\xCC\xA3", "et"}, {"Шах 12", "Шах 12"},     {"’tis", "'tis"},
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
        {"Шах", "item"},
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
        {"The 3rd of 10", ""},
        {"1066, 1067", "1066"},
        {"Apollo 11 of 1969", "1969"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(yearin(text), expected) << text;
    }
}

TEST(Words, ListsStandInTheOrderOfAnEnglishReader)
{
    std::vector<std::string> names = {"Zulu", "Éire", "aztecs", "Aztecs", "Egypt", "Đại Việt", "Finland"};
    std::sort(names.begin(), names.end(), listedbefore);
    EXPECT_EQ(names, (std::vector<std::string>{"Aztecs", "aztecs", "Đại Việt", "Egypt", "Éire", "Finland", "Zulu"}));
}

} // namespace brindor::authoring
