#include "mapmaker/names.h"

#include "authoring/csvfile.h"
#include "base/text.h"
#include "coastlines/builtin.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <string>
#include <utility>

namespace brindor::mapmaker {

namespace {

const std::vector<std::string> columns = {"name", "kind", "latitude", "longitude", "height", "width", "from", "to"};
constexpr std::array<std::string_view, 4> kinds = {"sea", "lake", "land", "island"}; // by Feature

std::optional<double> numberin(const std::string& field, double lowest, double highest)
{
    const double number = textvalue(field);
    const bool good = !field.empty() && decimaltext(number) == field && number >= lowest && number <= highest;
    return good ? std::optional(number) : std::nullopt;
}

std::optional<std::int64_t> yearin(const std::string& field, std::int64_t ifempty)
{
    return field.empty() ? ifempty : wholenumber(field);
}

std::optional<PlaceName> nameof(const std::vector<std::string>& fields)
{
    if (fields.size() != columns.size() || fields[0].empty()) {
        return std::nullopt;
    }
    const auto* const kind = std::find(kinds.begin(), kinds.end(), fields[1]);
    const auto latitude = numberin(fields[2], -90, 90);
    const auto longitude = numberin(fields[3], -180, 180);
    const auto height = numberin(fields[4], 0.1, 180);
    const auto width = numberin(fields[5], 0.1, 360);
    const auto from = yearin(fields[6], std::numeric_limits<std::int64_t>::min());
    const auto to = yearin(fields[7], std::numeric_limits<std::int64_t>::max());
    if (kind == kinds.end() || !latitude || !longitude || !height || !width || !from || !to) {
        return std::nullopt;
    }
    return PlaceName{QString::fromStdString(fields[0]),
                     static_cast<Feature>(kind - kinds.begin()),
                     {*latitude, *longitude},
                     *height,
                     *width,
                     *from,
                     *to};
}

} // namespace

Result<std::vector<PlaceName>> readnames(std::string_view text)
{
    const authoring::CsvTable table = authoring::parsecsv(text, ',');
    std::vector<PlaceName> names;
    for (const authoring::CsvRecord& record : table.records) {
        const bool header = &record == &table.records.front();
        std::optional<PlaceName> name = header ? std::nullopt : nameof(record.fields);
        if (header ? record.fields != columns : !name) {
            return {std::nullopt, "the names, line " + numbertext(record.line) + ": this is no name with its place"};
        }
        if (name) {
            names.push_back(std::move(*name));
        }
    }
    if (table.fault || names.empty()) {
        return {std::nullopt, "the names: " + (table.fault ? table.fault->text : std::string("there are none"))};
    }
    return {std::move(names), {}};
}

Result<std::vector<PlaceName>> worldnames()
{
    return readnames(builtin("names.csv"));
}

} // namespace brindor::mapmaker
