#include "ui/resources/message_format.h"

#include <cmath>
#include <stdexcept>

#include "host/translate.h"
#include "od/base/printed_number.h"
#include "od/base/unicode.h"

namespace resources {
namespace {

constexpr std::u16string_view kConversions = u"dgfs";

/// Where the next place of a message stands: its length is 0 if there is none.
struct place {
  std::size_t at;
  std::size_t length;
};

place next_place(std::u16string_view message, std::size_t from) {
  for (std::size_t at = message.find(u'%', from); at != message.npos; at = message.find(u'%', at + 2)) {
    const std::size_t end = message.find_first_not_of(u"0123456789.", at + 1);
    if (end != message.npos && kConversions.find(message[end]) != kConversions.npos)
      return {at, end + 1 - at};
  }
  return {message.size(), 0};
}

/// Digits behind the point, as in "%0.1f".
int precision_of(std::u16string_view placeholder) {
  constexpr int unless_told = 6;
  const std::size_t point = placeholder.find(u'.');
  return point == placeholder.npos ? unless_told : std::stoi('0' + odToUtf8(placeholder.substr(point + 1)));
}

std::u16string number_text(double number, std::u16string_view placeholder) {
  switch (placeholder.back()) {
    case u'd':
      return odPrintedNumber(std::round(number), std::chars_format::fixed, 0);
    case u'f':
      return odPrintedNumber(number, std::chars_format::fixed, precision_of(placeholder));
    default:
      return odPrintedNumber(number, std::chars_format::general, precision_of(placeholder));
  }
}

std::u16string without_double_percents(std::u16string_view text) {
  std::u16string result(text);
  for (std::size_t at = result.find(u"%%"); at != result.npos; at = result.find(u"%%", at + 1))
    result.erase(at, 1);
  return result;
}

}  // namespace

std::u16string message_value::written(std::u16string_view placeholder) const {
  const auto* text = std::get_if<std::u16string_view>(&m_value);
  if ((text != nullptr) != (placeholder.back() == u's'))
    throw std::invalid_argument("format_message: a value does not suit its place " + odToUtf8(placeholder));
  return text ? std::u16string(*text) : number_text(std::get<double>(m_value), placeholder);
}

std::vector<std::u16string> placeholders(std::u16string_view message) {
  std::vector<std::u16string> found;
  for (place next = next_place(message, 0); next.length > 0;
       next = next_place(message, next.at + next.length))
    found.emplace_back(message.substr(next.at, next.length));
  return found;
}

std::u16string format_message(std::u16string_view message, std::initializer_list<message_value> values) {
  std::u16string result;
  std::size_t from = 0;
  for (const message_value& value : values) {
    const place next = next_place(message, from);
    if (next.length == 0) throw std::invalid_argument("format_message: more values than places");
    result += without_double_percents(message.substr(from, next.at - from));
    result += value.written(message.substr(next.at, next.length));
    from = next.at + next.length;
  }
  if (next_place(message, from).length != 0)
    throw std::invalid_argument("format_message: more places than values");
  return result + without_double_percents(message.substr(from));
}

std::u16string format_string(int number, std::initializer_list<message_value> values) {
  return format_message(host::resource_string(number), values);
}

}  // namespace resources
