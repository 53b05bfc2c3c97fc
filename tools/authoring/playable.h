#pragma once

#include <string>
#include <vector>

namespace brindor::authoring {

struct UnaskedKind {
    std::string name; // "Faction, date"
    bool ofpeople = false;
};

// The kinds of question that the loaded Timeline can't fill, by number.
std::vector<UnaskedKind> unaskedkinds();

} // namespace brindor::authoring
