#include "authoring/csvfile.h"

#include <gtest/gtest.h>

namespace brindor::authoring {

namespace {

// "1:a|b" for each record, then the fault as "2/3: text".
std::string shown(const CsvTable& table)
{
    std::string text;
    for (const CsvRecord& record : table.records) {
        text += std::to_string(record.line) + ':';
        for (std::size_t i = 0; i < record.fields.size(); ++i) {
            text += (i == 0 ? "" : "|") + record.fields[i];
        }
        text += '\n';
    }
    if (table.fault) {
        text +=
            std::to_string(table.fault->line) + '/' + std::to_string(table.fault->column) + ": " + table.fault->text;
    }
    return text;
}

struct Case {
    const char* about;
    std::string text;
    std::string expected;
};

const char* const opened = "the quote that opens this text is never closed";
const char* const inner = "a quote inside a text must be doubled, and the whole text must stand in quotes";

} // namespace

TEST(Csv, IsReadAsSpreadsheetsWriteIt)
{
    const std::vector<Case> cases = {
        {"nothing", "", ""},
        {"plain", "a,b\nc,d\n", "1:a|b\n2:c|d\n"},
        {"no end of the last line", "a,b\nc,d", "1:a|b\n2:c|d\n"},
        {"a byte order mark",
         "\xEF\xBB\xBF"
         "a,b\n",
         "1:a|b\n"},
        {"CR LF", "a,b\r\nc,d\r\n", "1:a|b\n2:c|d\n"},
        {"CR alone", "a,b\rc,d\r", "1:a|b\n2:c|d\n"},
        {"empty lines count but give no record", "\n\na\n \n\r\nb\n", "3:a\n6:b\n"},
        {"empty fields", ",,\n,x,\n", "1:||\n2:|x|\n"},
        {"blanks round fields", "  a , b\t\n\" c \",d\n", "1:a|b\n2:c|d\n"},
        {"commas and quotes in quotes", "\"a, b\",\"the \"\"Great\"\"\"\n", "1:a, b|the \"Great\"\n"},
        {"line breaks in quotes", "a,\"b\nc\"\r\n\"d\r\ne\",f\ng,h\n", "1:a|b\nc\n3:d\r\ne|f\n5:g|h\n"},
        {"bytes that are not ASCII", "Malmö,\xFF\n", "1:Malmö|\xFF\n"},
        {"a quote never closed", "a,b\nc,\"d\ne,f\n", "1:a|b\n2/2: " + std::string(opened)},
        {"a lone quote", "a,b\nc,d \"x\" e\n", "1:a|b\n2/2: " + std::string(inner)},
        {"text behind a closing quote", "\"a\"b,c\n", "1/1: " + std::string(inner)},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(shown(parsecsv(c.text)), c.expected) << c.about;
    }
}

TEST(Csv, WhatIsWrittenIsReadBack)
{
    const std::vector<std::string> fields = {"", "plain", "a, b", "the \"Great\"", "", "Malmö"};
    EXPECT_EQ(csvline(fields), ",plain,\"a, b\",\"the \"\"Great\"\"\",,Malmö\n");
    EXPECT_EQ(parsecsv(csvline(fields)).records.at(0).fields, fields);
}

} // namespace brindor::authoring
