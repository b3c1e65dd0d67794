#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// A message with a text in each of its places "%s", in their order. Throws `std::invalid_argument` unless
/// there are as many texts as places.
std::u16string filled_text(std::u16string_view message, std::initializer_list<std::u16string_view> texts);
