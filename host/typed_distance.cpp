#include <charconv>
#include <cmath>
#include <string>

#include "host/distance_text.h"
#include "host/prompt_text.h"
#include "od/base/unicode.h"

namespace host {
namespace {

/// Reads a distance without its sign from the front of a text.
class DistanceReader {
 public:
  explicit DistanceReader(std::string_view text) : m_rest(text) {}

  bool atEnd() const { return m_rest.empty(); }

  bool take(char sign) {
    if (!m_rest.starts_with(sign)) return false;
    m_rest.remove_prefix(1);
    return true;
  }

  bool takeBlanks() {
    const std::size_t count = std::min(m_rest.find_first_not_of(' '), m_rest.size());
    m_rest.remove_prefix(count);
    return count > 0;
  }

  /// A number, or a fraction with or without a whole number before it.
  std::optional<double> mixed() {
    const auto first = number();
    if (!first) return {};
    if (take('/')) return quotient(*first);
    const std::string_view before_gap = m_rest;
    if (!take('-') && !takeBlanks()) return first;
    const auto numerator = number();
    if (!numerator || !take('/')) {
      m_rest = before_gap;
      return first;
    }
    const auto fraction = quotient(*numerator);
    return fraction ? std::optional(*first + *fraction) : std::nullopt;
  }

 private:
  std::optional<double> number() {
    if (m_rest.empty() || (m_rest[0] != '.' && (m_rest[0] < '0' || m_rest[0] > '9'))) return {};
    double value = 0;
    const auto [end, error] = std::from_chars(m_rest.data(), m_rest.data() + m_rest.size(), value);
    if (error != std::errc()) return {};
    m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.data()));
    return value;
  }

  std::optional<double> quotient(double numerator) {
    const auto denominator = number();
    return denominator && *denominator != 0 ? std::optional(numerator / *denominator) : std::nullopt;
  }

  std::string_view m_rest;
};

bool has_feet(length_units units) {
  return units == length_units::engineering || units == length_units::architectural;
}

/// What stands behind the feet: nothing, or inches.
std::optional<double> inches_behind_feet(DistanceReader& reader) {
  if (reader.atEnd()) return 0;
  reader.takeBlanks();
  reader.take('-');
  const auto inches = reader.mixed();
  reader.take('"');
  return inches;
}

std::optional<double> unsigned_distance(std::string_view text, length_units units) {
  DistanceReader reader(text);
  auto distance = reader.mixed();
  if (!distance) return {};
  if (has_feet(units) && reader.take('\'')) {
    const auto inches = inches_behind_feet(reader);
    if (!inches) return {};
    *distance = *distance * 12 + *inches;
  } else if (has_feet(units)) {
    reader.take('"');
  }
  if (!reader.atEnd() || !std::isfinite(*distance)) return {};
  return distance;
}

}  // namespace

std::optional<double> typed_distance(std::u16string_view text, length_units units) {
  const std::string whole = odToUtf8(without_outer_blanks(text));
  std::string_view rest = whole;
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) rest.remove_prefix(1);
  const auto distance = unsigned_distance(rest, units);
  return distance && negative ? std::optional(-*distance) : distance;
}

}  // namespace host
