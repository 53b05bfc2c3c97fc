#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

// What the fuzz targets stand on: an empty folder of their own in memory as the current directory, and a host that
// shows nothing and says Yes to every question.
namespace brindor::fuzz {

// Once in a process, at the first input.
void preparedground();

void writeinput(const char* file, std::string_view content);

// Ends the process, which the fuzzer reports with the input, unless the condition holds.
void require(bool condition);

inline std::string_view textof(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

} // namespace brindor::fuzz
