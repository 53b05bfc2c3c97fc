#pragma once

#include "authoring/findings.h"
#include "authoring/forms.h"
#include "authoring/words.h"
#include "base/text.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

// What the checks share to say what they found.
namespace brindor::authoring {

// The findings about the records of one file.
class Notes {
public:
    Notes(const Source& source, Findings& findings) : source_(source), findings_(findings) {}

    // The finding stands at the form's line and names the column.
    void error(const ItemForm& form, std::string_view column, const std::string& what)
    {
        add(Severity::error, form.line, source_.field(column) + ": " + what);
    }

    void warning(const ItemForm& form, std::string_view column, const std::string& what)
    {
        add(Severity::warning, form.line, source_.field(column) + ": " + what);
    }

    void note(const ItemForm& form, std::string_view column, const std::string& what)
    {
        add(Severity::note, form.line, source_.field(column) + ": " + what);
    }

    void add(Severity severity, std::int64_t line, const std::string& text)
    {
        findings_.push_back({severity, source_.file, line, text});
    }

private:
    const Source& source_;
    Findings& findings_;
};

inline std::string atline(const ItemForm& form)
{
    return "line " + numbertext(form.line);
}

// Two records with one text, in the order of the file.
struct Twins {
    const ItemForm& first;
    const ItemForm& second;
};

// The first record of each text; tells of a record that has the text of one before, letter case and accents aside.
class Seen {
public:
    std::optional<Twins> add(const std::string& text, const ItemForm& form)
    {
        const auto [place, fresh] = first_.emplace(folded(text), &form);
        if (fresh) {
            return std::nullopt;
        }
        const ItemForm& other = *place->second;
        return other.line <= form.line ? Twins{other, form} : Twins{form, other};
    }

private:
    std::map<std::string, const ItemForm*> first_;
};

} // namespace brindor::authoring
