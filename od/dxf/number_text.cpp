#include "od/dxf/number_text.h"

#include <array>
#include <charconv>
#include <cmath>

#include "od/base/trimmed.h"
#include "od/base/whole_number.h"

namespace dxf {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

template <typename Number, typename... Format>
std::optional<Number> parse_all(std::string_view text, Format... format) {
  if (text.starts_with('+')) text.remove_prefix(1);
  return odWholeNumber<Number>(text, format...);
}

}  // namespace

std::string_view trim(std::string_view text) { return odTrimmed(text, " \t"); }

std::optional<double> parse_double(std::string_view text) {
  const auto value = parse_all<double>(trim(text));
  return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<std::int64_t> parse_int(std::string_view text) {
  const auto whole = parse_all<std::int64_t>(trim(text));
  if (whole) return whole;
  const auto real = parse_double(text);
  if (!real || std::fabs(*real) >= 9.2e18) return std::nullopt;
  return static_cast<std::int64_t>(*real);
}

std::optional<std::uint64_t> parse_handle(std::string_view text) {
  const std::string_view digits = trim(text);
  if (digits.empty() || digits.front() == '+') return std::nullopt;
  return parse_all<std::uint64_t>(digits, 16);
}

std::optional<std::string> parse_hex(std::string_view text) {
  const std::string_view digits = trim(text);
  if (digits.size() % 2 != 0) return std::nullopt;
  std::string bytes;
  bytes.reserve(digits.size() / 2);
  for (std::size_t at = 0; at < digits.size(); at += 2) {
    const auto byte = parse_handle(digits.substr(at, 2));
    if (!byte || digits[at] == ' ' || digits[at + 1] == ' ') return std::nullopt;
    bytes += static_cast<char>(*byte);
  }
  return bytes;
}

std::string format_double(double value) {
  std::array<char, 32> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
  std::string text(buffer.data(), end);
  const std::size_t exponent = text.find('e');
  if (exponent != std::string::npos) text[exponent] = 'E';
  if (text.find('.') == std::string::npos) text.insert(std::min(exponent, text.size()), ".0");
  return text;
}

std::string format_handle(std::uint64_t value) {
  std::string text;
  do {
    text.insert(text.begin(), kDigits[value & 15]);
    value >>= 4;
  } while (value != 0);
  return text;
}

std::string format_hex(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() * 2);
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
  }
  return text;
}

}  // namespace dxf
