#include "authoring/forms.h"

#include "base/text.h"

#include <algorithm>
#include <tuple>

namespace brindor::authoring {

namespace {

bool earlier(const ItemForm& a, const ItemForm& b)
{
    return std::tie(a.date1, a.date2, a.name) < std::tie(b.date1, b.date2, b.name);
}

} // namespace

bool Source::has(std::string_view column) const
{
    return std::find(headings.begin(), headings.end(), column) != headings.end();
}

std::string Source::field(std::string_view column) const
{
    const auto found = std::find(headings.begin(), headings.end(), column);
    if (found == headings.end()) {
        return std::string(column);
    }
    return "column " + numbertext(found - headings.begin() + 1) + " (" + std::string(column) + ')';
}

std::string counttext(std::size_t count, std::string_view one, std::string_view more)
{
    return numbertext(static_cast<std::int64_t>(count)) + ' ' + std::string(count == 1 ? one : more);
}

void sortforms(Forms& forms)
{
    std::stable_sort(forms.people.begin(), forms.people.end(), earlier);
    std::stable_sort(forms.events.begin(), forms.events.end(), earlier);
}

} // namespace brindor::authoring
