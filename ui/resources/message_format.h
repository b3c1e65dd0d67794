#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace resources {

/// What stands in a place of a message: a number or a text.
class message_value {
 public:
  message_value(double number) : m_value(number) {}
  message_value(std::u16string_view text) : m_value(text) {}
  message_value(const std::u16string& text) : m_value(std::u16string_view(text)) {}
  message_value(const char16_t* text) : m_value(std::u16string_view(text)) {}

  /// As a place wants it, with a point in every language. Throws `std::invalid_argument` for a text where a
  /// number is wanted, and for a number where a text is.
  std::u16string written(std::u16string_view placeholder) const;

 private:
  std::variant<double, std::u16string_view> m_value;
};

/// The places of a message, in their order: "%d", "%g", and "%f" with or without digits as in "%0.1f", for
/// numbers, and "%s" for a text. "%%" is no place but the sign itself.
std::vector<std::u16string> placeholders(std::u16string_view message);

/// The message with a value in each of its places, in their order. Throws `std::invalid_argument` unless
/// there are as many values as places.
std::u16string format_message(std::u16string_view message, std::initializer_list<message_value> values);

/// The same for the string of a number.
std::u16string format_string(int number, std::initializer_list<message_value> values);

}  // namespace resources
