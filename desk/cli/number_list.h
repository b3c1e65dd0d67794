#pragma once

#include <charconv>
#include <string>
#include <system_error>
#include <vector>

/// The numbers of a list such as "1,2,3,4" or "640x480"; none when one cannot be read.
template <typename Number>
std::vector<Number> numberList(const std::string& text, char separator) {
  std::vector<Number> result;
  const char* at = text.data();
  const char* const end = at + text.size();
  for (;;) {
    Number value{};
    const auto [stop, error] = std::from_chars(at, end, value);
    if (error != std::errc()) return {};
    result.push_back(value);
    if (stop == end) return result;
    if (*stop != separator) return {};
    at = stop + 1;
  }
}
