#include "authoring/csvfile.h"

#include <csv.h>
#include <utility>

namespace brindor::authoring {

namespace {

constexpr std::string_view blanks = " \t";

std::string trimmed(std::string_view text)
{
    const std::size_t start = text.find_first_not_of(blanks);
    if (start == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(start, text.find_last_not_of(blanks) + 1 - start));
}

struct Parsing {
    CsvTable table;
    CsvRecord record;
};

void takefield(void* field, std::size_t size, void* parsing)
{
    const std::string_view text =
        size == 0 ? std::string_view() : std::string_view(static_cast<const char*>(field), size);
    static_cast<Parsing*>(parsing)->record.fields.push_back(trimmed(text));
}

void takerecord(int, void* parsing)
{
    Parsing& p = *static_cast<Parsing*>(parsing);
    p.table.records.push_back(std::exchange(p.record, {}));
}

class Parser {
public:
    explicit Parser(char separator) : separator_(separator)
    {
        csv_init(&parser_, CSV_STRICT | CSV_STRICT_FINI);
        csv_set_delim(&parser_, static_cast<unsigned char>(separator));
    }
    ~Parser() { csv_free(&parser_); }
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    // The parser tells no places, so it is fed byte by byte and the lines are counted beside it.
    CsvTable parse(std::string_view text)
    {
        std::int64_t line = 1;
        char before = '\0';
        for (const char c : text) {
            const bool linebreak = c == '\n' || c == '\r';
            const bool blank = blanks.find(c) != std::string_view::npos && c != separator_;
            if (parsing_.record.line == 0 && !linebreak && !blank) {
                parsing_.record.line = line;
            }
            if (csv_parse(&parser_, &c, 1, takefield, takerecord, &parsing_) != 1) {
                return refused("a quote inside a text must be doubled, and the whole text must stand in quotes");
            }
            line += linebreak && !(c == '\n' && before == '\r') ? 1 : 0;
            before = c;
        }
        if (csv_fini(&parser_, takefield, takerecord, &parsing_) != 0) {
            return refused("the quote that opens this text is never closed");
        }
        return std::move(parsing_.table);
    }

private:
    CsvTable refused(std::string text)
    {
        parsing_.table.fault = CsvFault{parsing_.record.line, parsing_.record.fields.size() + 1, std::move(text)};
        return std::move(parsing_.table);
    }

    char separator_;
    csv_parser parser_{};
    Parsing parsing_;
};

} // namespace

CsvTable parsecsv(std::string_view text, char separator)
{
    return Parser(separator).parse(text);
}

std::string csvline(const std::vector<std::string>& fields)
{
    std::string line;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::string& field = fields[i];
        line += i == 0 ? "" : ",";
        const bool plain = field.find_first_of(",\"\r\n") == std::string::npos;
        if (plain && field == trimmed(field)) {
            line += field;
            continue;
        }
        std::string quoted(csv_write(nullptr, 0, field.data(), field.size()), '\0');
        csv_write(quoted.data(), quoted.size(), field.data(), field.size());
        line += quoted;
    }
    return line + '\n';
}

} // namespace brindor::authoring
