#include "authoring/commands.h"
#include "authoring/csvfile.h"
#include "authoring/values.h"
#include "support/programtest.h"
#include "tools/sample.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <unicode/unistr.h>

namespace brindor::authoring {

using tests::contentof;
using tests::errors;
using tests::report;
using tests::writefile;
using tests::writefolder;

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

const char* const opened = "the quote that opens this text is never closed";
const char* const inner = "a quote inside a text must be doubled, and the whole text must stand in quotes";

// The text as a spreadsheet of another country saves it: other separators, decimal commas, quotes where needed.
std::string converted(const std::string& text, char separator)
{
    std::string result;
    for (const CsvRecord& record : parsecsv(text, ',').records) {
        for (std::size_t i = 0; i < record.fields.size(); ++i) {
            std::string field = record.fields[i];
            const bool number = !field.empty() && field.find_first_not_of("-.0123456789") == std::string::npos;
            std::replace(field.begin(), field.end(), '.', number && separator == ';' ? ',' : '.');
            const bool quoted = field.find(separator) != std::string::npos;
            result += (i == 0 ? "" : std::string(1, separator)) + (quoted ? '"' + field + '"' : field);
        }
        result += "\r\n";
    }
    return result;
}

std::string utf16(const std::string& text, bool bigendian)
{
    const icu::UnicodeString characters = icu::UnicodeString::fromUTF8("\uFEFF" + text);
    std::string bytes;
    for (int32_t i = 0; i < characters.length(); ++i) {
        const char low = static_cast<char>(characters[i] & 0xFF);
        const char high = static_cast<char>(characters[i] >> 8);
        bytes += bigendian ? std::string{high, low} : std::string{low, high};
    }
    return bytes;
}

} // namespace

TEST(Csv, IsReadAsSpreadsheetsWriteIt)
{
    struct Case {
        const char* about;
        std::string text;
        std::string expected;
        char separator = ',';
    };
    const std::vector<Case> cases = {
        {"nothing", "", ""},
        {"no end of the last line", "a,b\nc,d", "1:a|b\n2:c|d\n"},
        {"CR LF", "a,b\r\nc,d\r\n", "1:a|b\n2:c|d\n"},
        {"CR alone", "a,b\rc,d\r", "1:a|b\n2:c|d\n"},
        {"empty lines count but give no record", "\n\na\n \n\r\nb\n", "3:a\n6:b\n"},
        {"empty fields", ",,\n,x,\n", "1:||\n2:|x|\n"},
        {"blanks round fields", "  a , b\t\n\" c \",d\n", "1:a|b\n2:c|d\n"},
        {"commas and quotes in quotes", "\"a, b\",\"the \"\"Great\"\"\"\n", "1:a, b|the \"Great\"\n"},
        {"line breaks in quotes", "a,\"b\nc\"\r\n\"d\r\ne\",f\ng,h\n", "1:a|b\nc\n3:d\r\ne|f\n5:g|h\n"},
        {"semicolons", "a,b;\"c;d\"\n", "1:a,b|c;d\n", ';'},
        {"tabs", "\ta\t b\n", "1:|a|b\n", '\t'},
        {"a quote never closed", "a,b\nc,\"d\ne,f\n", "1:a|b\n2/2: " + std::string(opened)},
        {"a lone quote", "a,b\nc,d \"x\" e\n", "1:a|b\n2/2: " + std::string(inner)},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(shown(parsecsv(c.text, c.separator)), c.expected) << c.about;
    }
    const std::vector<std::string> fields = {"", "plain", "a, b", "the \"Great\"", "", "Malmö"};
    EXPECT_EQ(csvline(fields), ",plain,\"a, b\",\"the \"\"Great\"\"\",,Malmö\n");
}

class Spreadsheet : public tests::ProgramTest {};

TEST_F(Spreadsheet, SavedInAnyCommonWayIsTheSameTimeline)
{
    const std::string people =
        tests::peopleheader() + tests::goodpeople() + "Ma Rong,100,,,,\"Lutes; and, books.\",,China,Poet\n";
    const std::string events = tests::eventsheader() + tests::goodevents();
    const auto made = [](const std::string& peopletext, const std::string& eventstext) {
        writefile("people.csv", peopletext);
        writefile("events.csv", eventstext);
        const Report report = maketimeline(".", "X.bd3", true);
        return errors(report.findings) + (report.said.empty() ? "" : contentof("X.bd3"));
    };
    const std::string wanted = made(people, events);
    ASSERT_TRUE(wanted.starts_with("11 -- Number"));
    const auto both = [&](const auto& change) { return made(change(people), change(events)); };
    EXPECT_EQ(both([](const std::string& t) { return "\xEF\xBB\xBF" + converted(t, ';'); }), wanted);
    EXPECT_EQ(both([](const std::string& t) { return "sep=;\r\n" + converted(t, ';'); }), wanted);
    EXPECT_EQ(both([](const std::string& t) { return converted(t, '\t'); }), wanted);
    EXPECT_EQ(both([](const std::string& t) { return utf16(converted(t, '\t'), false); }), wanted);
    EXPECT_EQ(both([](const std::string& t) { return utf16(converted(t, ';'), true); }), wanted);
    // Rows of nothing but separators, empty columns behind the last, headings in other letters and with blanks.
    EXPECT_EQ(
        both([](std::string t) { return " Name , Date 1" + t.replace(t.find('\n'), 1, ",,\n,,,,\n").substr(10); }),
        wanted);
}

TEST_F(Spreadsheet, TellsWhatIsWrongWithTheFile)
{
    struct Case {
        std::string text;
        std::string said;
    };
    const std::string utf8 = "in Excel save it as \"CSV UTF-8\", in LibreOffice as \"Text CSV\" with the character set "
                             "\"Unicode (UTF-8)\"";
    const std::vector<Case> cases = {
        {"",
         ":1: error: the file is empty; its first row must hold the headings name, date1, kind1, date2, kind2, desc1, "
         "desc2, faction, occupation, woman, fame, source"},
        {"name,date1,desc1,occupation\n",
         ":1: error: the column faction is missing; found: name, date1, desc1, occupation"},
        {"Name;Year\n", ":1: error: the columns date1, desc1, faction, occupation are missing; found: name, year"},
        {"My timeline,,,\n\nname,date1,desc1,faction,occupation\n",
         ":1: error: this is no row of headings; they stand in line 3, so delete the rows above that"},
        {"name,date1,name,desc1,faction,occupation\n",
         ":1: error: the column name stands twice; give one of them another name"},
        {"colour," + tests::peopleheader(), ":1: note: the column colour is not known and left unread"},
        {"Mal\xF6,1\nMal\xF6,2\n", ": error: the file is not in UTF-8, so letters with accents would be lost; " + utf8},
        {"PK\x03\x04 and so on", ": error: this is a spreadsheet's own file; open it in the spreadsheet and save it as "
                                 "\"CSV UTF-8\" or \"Text CSV\""},
    };
    writefile("people.xlsx", "");
    EXPECT_TRUE(
        report(checkfolder("."))
            .starts_with("./people.csv: error: cannot be read: No such file or directory; open ./people.xlsx in the "
                         "spreadsheet and save it as \"CSV UTF-8\" or \"Text CSV\"\n"));
    for (const Case& c : cases) {
        writefile("people.csv", c.text);
        std::string said;
        for (const Finding& finding : checkfolder(".")) {
            const bool ofsize = finding.text.starts_with("only 0");
            said += finding.file == "./people.csv" && !ofsize ? findingline(finding) : "";
        }
        EXPECT_EQ(said, "./people.csv" + c.said) << c.text;
    }
}

TEST(Values, YearsComeInManyForms)
{
    struct Case {
        const char* field;
        const char* meaning; // a number, or what is wrong
    };
    const std::vector<Case> cases = {
        {"1832", "1832"},
        {"+5", "5"},
        {"-44", "-44"},
        {"\u221244", "-44"},
        {"44 BC", "-44"},
        {"44bce", "-44"},
        {"44 B.C.", "-44"},
        {"AD 800", "800"},
        {"800 CE", "800"},
        {"1832\u00A0", "1832"},
        {"\u2009 1832 ", "1832"},
        {"AD 800 BC", "no year; write the year alone, as 800"},
        {"-44 BC", "no year; write a whole number, as 1832, -44 or 44 BC"},
        {"12/05/1832", "no year; write the year alone, 1832"},
        {"12.5.1832", "no year; write the year alone, 1832"},
        {"1832-05-12", "no year; write the year alone, as 1832"},
        {"1832-1840", "no year; write the year alone, 1832; the last year goes into date2"},
        {"1832 \u2013 40", "no year; write the year alone, 1832; the last year goes into date2"},
        {"1,832", "no year; write the year without a separator, 1832"},
        {"ca. 1832", "no year; write the year alone, 1832; the word goes into the column kind1 or kind2"},
        {"c. 1832", "no year; write the year alone, 1832; the word goes into the column kind1 or kind2"},
        {"May 1832", "no year; write the year alone, as 1832"},
        {"soon", "no year; write a whole number, as 1832, -44 or 44 BC"},
    };
    for (const Case& c : cases) {
        const Result<std::int16_t> year = yearof(c.field);
        const std::string refused = '"' + std::string(c.field) + "\" is " + c.meaning;
        EXPECT_EQ(year ? std::to_string(*year.value) : year.reason, year ? c.meaning : refused) << c.field;
    }
    EXPECT_EQ(yearof("99999").reason, "\"99999\" is outside -32768 to 32767");
}

TEST(Values, KindsAndDegreesComeInManyForms)
{
    std::string kinds;
    for (const char* field : {"", "ca", "CA.", "c.", "circa", " About", "reign", "(Reign)", "?"}) {
        const Result<std::int16_t> kind = datekindof(field);
        kinds += kind ? std::to_string(*kind.value) : kind.reason;
    }
    EXPECT_EQ(kinds, "01111122\"?\" is no kind of date; leave it empty or write ca. or reign");
    struct Case {
        const char* field;
        double degrees; // 999: refused
    };
    for (const Case& c : std::vector<Case>{{"50.91", 50.91},
                                           {"50,91", 50.91},
                                           {"\u221212,5", -12.5},
                                           {"90", 90},
                                           {"90.5", 999},
                                           {"nan", 999},
                                           {"1,2,3", 999},
                                           {"50.9x", 999}}) {
        EXPECT_EQ(degreesof(c.field, 90).value.value_or(999), c.degrees) << c.field;
    }
}

} // namespace brindor::authoring
