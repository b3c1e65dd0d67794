#pragma once

#include <charconv>
#include <optional>
#include <string_view>

/// The number that the whole of `digits` is, with a point in every language; nothing for any other text and
/// for a number that its type cannot hold. `form` is the base of an integer, or the form of a real, as
/// `std::from_chars` takes it.
template <class Number, class... Form>
std::optional<Number> odWholeNumber(std::string_view digits, Form... form) {
  Number value{};
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, value, form...);
  return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}
