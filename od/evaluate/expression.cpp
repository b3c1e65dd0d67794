#include "od/evaluate/expression.h"

#include <cmath>
#include <string>
#include <vector>

#include "od/base/trimmed.h"
#include "od/base/unicode.h"
#include "od/base/whole_number.h"
#include "od/field/field_markers.h"

namespace {

constexpr char16_t kNegation = u'~';
constexpr std::u16string_view kNumberUnits = u"0123456789.";

int rank(char16_t operation) {
  switch (operation) {
    case u'+':
    case u'-':
      return 1;
    case u'*':
    case u'/':
      return 2;
    case kNegation:
      return 3;
    case u'^':
      return 4;
    default:
      return 0;  // a bracket
  }
}

bool bindsToTheRight(char16_t operation) { return operation == u'^' || operation == kNegation; }

double joined(double left, char16_t operation, double right) {
  switch (operation) {
    case u'+':
      return left + right;
    case u'-':
      return left - right;
    case u'*':
      return left * right;
    case u'/':
      return left / right;
    default:
      return std::pow(left, right);
  }
}

/// Numbers and operations that wait, each on a stack of its own.
class Calculator {
 public:
  Calculator(std::u16string_view text,
             const std::function<std::optional<double>(std::u16string_view)>& operand)
      : m_rest(text), m_operand(operand) {}

  std::optional<double> result() {
    for (skipBlanks(); !m_rest.empty(); skipBlanks())
      if (!(m_wantsNumber ? takeNumber() : takeOperation())) return {};
    if (m_wantsNumber || !reduce(1) || m_numbers.size() != 1 || !m_waiting.empty()) return {};
    return std::isfinite(m_numbers.back()) ? std::optional(m_numbers.back()) : std::nullopt;
  }

 private:
  void skipBlanks() { m_rest.remove_prefix(std::min(m_rest.size(), m_rest.find_first_not_of(u' '))); }

  char16_t take() {
    const char16_t unit = m_rest.front();
    m_rest.remove_prefix(1);
    return unit;
  }

  bool push(std::optional<double> number, std::size_t length) {
    if (!number) return false;
    m_numbers.push_back(*number);
    m_rest.remove_prefix(length);
    m_wantsNumber = false;
    return true;
  }

  /// A number, a reference, or what may stand in front of one.
  bool takeNumber() {
    switch (m_rest.front()) {
      case u'+':
        take();
        return true;
      case u'-':
        take();
        m_waiting.push_back(kNegation);
        return true;
      case u'(':
        m_waiting.push_back(take());
        return true;
      case u'%': {
        const std::size_t end = m_rest.find(kOdMarkerEnd);
        if (end == m_rest.npos) return false;
        const std::size_t length = end + kOdMarkerEnd.size();
        return push(m_operand(m_rest.substr(0, length)), length);
      }
      default:
        return takeDigits();
    }
  }

  bool takeDigits() {
    std::size_t length = std::min(m_rest.size(), m_rest.find_first_not_of(kNumberUnits));
    const bool hasExponent =
        length > 0 && length < m_rest.size() && (m_rest[length] == u'e' || m_rest[length] == u'E');
    if (hasExponent) {
      std::size_t digits = length + 1;
      if (digits < m_rest.size() && (m_rest[digits] == u'+' || m_rest[digits] == u'-')) ++digits;
      length = std::min(m_rest.size(), m_rest.find_first_not_of(u"0123456789", digits));
    }
    return push(odNumberOf(m_rest.substr(0, length)), length);
  }

  bool takeOperation() {
    const char16_t operation = take();
    if (operation == u')') {
      if (!reduce(1) || m_waiting.empty()) return false;
      m_waiting.pop_back();
      return true;
    }
    const int own = operation == kNegation ? 0 : rank(operation);
    if (own == 0 || !reduce(bindsToTheRight(operation) ? own + 1 : own)) return false;
    m_waiting.push_back(operation);
    m_wantsNumber = true;
    return true;
  }

  /// Carries out what waits and binds at least as `least`, up to a bracket.
  bool reduce(int least) {
    while (!m_waiting.empty() && rank(m_waiting.back()) >= least) {
      const char16_t operation = m_waiting.back();
      m_waiting.pop_back();
      if (m_numbers.size() < (operation == kNegation ? 1U : 2U)) return false;
      const double right = m_numbers.back();
      m_numbers.pop_back();
      if (operation == kNegation) {
        m_numbers.push_back(-right);
      } else {
        m_numbers.back() = joined(m_numbers.back(), operation, right);
      }
    }
    return true;
  }

  std::u16string_view m_rest;
  const std::function<std::optional<double>(std::u16string_view)>& m_operand;
  std::vector<double> m_numbers;
  std::vector<char16_t> m_waiting;
  bool m_wantsNumber = true;
};

}  // namespace

std::optional<double> odEvaluateExpression(
    std::u16string_view text, const std::function<std::optional<double>(std::u16string_view)>& operand) {
  return Calculator(text, operand).result();
}

std::optional<double> odNumberOf(std::u16string_view text) {
  const auto value = odWholeNumber<double>(odToUtf8(odTrimmed(text, u" ")));
  return value && std::isfinite(*value) ? value : std::nullopt;
}
