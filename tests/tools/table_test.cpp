#include "authoring/csvfile.h"
#include "authoring/values.h"
#include "timeline/writer.h"
#include "tools/sample.h"

namespace brindor::authoring {

using namespace tests;

namespace {

// "1:a|b" for each record, then the fault as "2/3: text".
std::string shown(const CsvTable& table)
{
    std::string text;
    for (const CsvRecord& record : table.records) {
        text += std::to_string(record.line) + ':' + each([](const std::string& field) { return field; }, record.fields);
        text += '\n';
    }
    const CsvFault fault = table.fault.value_or(CsvFault());
    return text + (table.fault ? std::to_string(fault.line) + '/' + std::to_string(fault.column) + ": " : "") +
           fault.text;
}

// Letters of ASCII in UTF-16 with a mark.
std::string utf16(const std::string& text, bool bigendian)
{
    std::string bytes = bigendian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char c : text) {
        bytes += bigendian ? std::string{'\0', c} : std::string{c, '\0'};
    }
    return bytes;
}

// The value of a field, or why it has none.
template <class Value>
std::string valueof(const Result<Value>& value)
{
    return value ? std::to_string(*value.value) : value.reason;
}

} // namespace

TEST(Csv, IsReadAsSpreadsheetsWriteIt)
{
    const struct {
        const char* about;
        std::string text;
        std::string expected;
        char separator = ',';
    } cases[] = {
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
        {"a quote never closed", "a,b\nc,\"d\ne,f\n", "1:a|b\n2/2: the quote that opens this text is never closed"},
        {"a lone quote", "a,b\nc,d \"x\" e\n",
         "1:a|b\n2/2: a quote inside a text must be doubled, and the whole text must stand in quotes"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(shown(parsecsv(c.text, c.separator)), c.expected) << c.about;
    }
    EXPECT_EQ(csvline({"", "plain", "a, b", "the \"Great\"", "", "Malmö"}),
              ",plain,\"a, b\",\"the \"\"Great\"\"\",,Malmö\n");
}

using Spreadsheet = ProgramTest;

TEST_F(Spreadsheet, SavedInAnyCommonWayIsTheSameTimeline)
{
    EXPECT_EQ(errors(newtimeline("my voyages", ',')),
              "my voyages: people.csv and events.csv with three example rows each; write your own rows, then "
              "timelinemaker play \"my voyages\"");
    newtimeline("semicolons", ';');
    EXPECT_NE(contentof("semicolons/events.csv").find(".;;Exploration;Spain;;San Salvador;24,05;-74,50;"),
              std::string::npos);
    const auto loaded = [](const std::string& from, const auto& change) {
        for (const std::string name : {"/people.csv", "/events.csv"}) {
            writefile('.' + name, change(contentof(from + name).substr(3))); // without the mark of UTF-8
        }
        Findings findings;
        loadtarget(".", findings);
        return report(findings) + timelinetext();
    };
    const auto plain = [](const std::string& text) { return text; };
    const auto tabs = [](std::string text) {
        std::replace(text.begin(), text.end(), ',', '\t');
        return text;
    };
    const std::string wanted = loaded("my voyages", plain);
    EXPECT_TRUE(wanted.starts_with("3 -- Number of people")) << wanted;
    EXPECT_EQ(loaded("my voyages", tabs), wanted);
    EXPECT_EQ(loaded("my voyages", [&](const std::string& text) { return utf16(tabs(text), false); }), wanted);
    EXPECT_EQ(loaded("semicolons", plain), wanted);
    EXPECT_EQ(loaded("semicolons", [](const std::string& text) { return "\xEF\xBB\xBF" + text; }), wanted);
    EXPECT_EQ(loaded("semicolons", [](const std::string& text) { return "sep=;\r\n" + text; }), wanted);
    EXPECT_EQ(loaded("semicolons", [](const std::string& text) { return utf16(text, true); }), wanted);
    // Rows of nothing but separators, empty columns behind the last, headings in other letters and with blanks.
    EXPECT_EQ(loaded("my voyages",
                     [](std::string text) {
                         return " Name , Date 1" + text.replace(text.find('\n'), 1, ",,\n,,,,\n").substr(10);
                     }),
              wanted);
}

TEST(Values, YearsComeInManyForms)
{
    const auto year = [](const std::string& field) { return valueof(yearof(field)); };
    EXPECT_EQ(each(year, {"1832", "+5", "-44", "\u221244", "44 BC", "44bce", "44 B.C.", "AD 800", "800 CE",
                          "1832\u00A0", "\u2009 1832 "}),
              "1832|5|-44|-44|-44|-44|-44|800|800|1832|1832");
    EXPECT_EQ(year("99999"), "\"99999\" is outside -32768 to 32767");
    const std::string word = "write the year alone, 1832; the word goes into the column kind1 or kind2";
    const std::string range = "write the year alone, 1832; the last year goes into date2";
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"AD 800 BC", "write the year alone, as 800"},
        {"-44 BC", "write a whole number, as 1832, -44 or 44 BC"},
        {"12/05/1832", "write the year alone, 1832"},
        {"12.5.1832", "write the year alone, 1832"},
        {"1832-05-12", "write the year alone, as 1832"},
        {"1832-1840", range},
        {"1832 \u2013 40", range},
        {"1,832", "write the year without a separator, 1832"},
        {"ca. 1832", word},
        {"c. 1832", word},
        {"May 1832", "write the year alone, as 1832"},
        {"soon", "write a whole number, as 1832, -44 or 44 BC"},
    };
    for (const auto& [field, advice] : cases) {
        EXPECT_EQ(year(field), '"' + field + "\" is no year; " + advice);
    }
}

TEST(Values, KindsAndDegreesComeInManyForms)
{
    const auto kind = [](const std::string& field) { return valueof(datekindof(field)); };
    EXPECT_EQ(each(kind, {"", "ca", "CA.", "c.", "circa", " About", "reign", "(Reign)", "?"}),
              "0|1|1|1|1|1|2|2|\"?\" is no kind of date; leave it empty or write ca. or reign");
    const auto degrees = [](const std::string& field) {
        return std::to_string(degreesof(field, 90).value.value_or(999)).substr(0, 5);
    };
    EXPECT_EQ(each(degrees, {"50.91", "50,91", "\u221212,5", "90", "-90", "90.5", "-90.5", "nan", "1,2,3", "50.9x"}),
              "50.91|50.91|-12.5|90.00|-90.0|999.0|999.0|999.0|999.0|999.0");
}

} // namespace brindor::authoring
