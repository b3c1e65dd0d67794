#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace resources {

/// The places of a message that take a number: "%d", "%g", and "%f" with or without its digits, as in
/// "%0.1f". "%%" is no place.
std::vector<std::u16string> placeholders(std::u16string_view message);

/// The message with a number in each of its places, in their order, with a point in every language. Throws
/// `std::invalid_argument` unless there are as many numbers as places.
std::u16string format_message(std::u16string_view message, std::initializer_list<double> numbers);

/// The same for the string of a number.
std::u16string format_string(int number, std::initializer_list<double> numbers);

}  // namespace resources
