#pragma once

#include <optional>
#include <string>

namespace brindor {

// What a step that can fail gives back: a value, or the reason why there is none, as a text for people.
template <class T>
struct Result {
    std::optional<T> value;
    std::string reason; // empty where there is a value

    explicit operator bool() const { return value.has_value(); }
};

// The value of a step that has nothing to give but its success.
struct Done {};

} // namespace brindor
