#include "host/text_pattern.h"

#include <unicode/regex.h>

#include <stdexcept>

#include "od/base/unicode.h"

namespace {

/// Steps of the matcher, each some thousand of its operations, after which an expression is given up: a
/// quarter of a second.
constexpr std::int32_t kStepLimit = 500;

icu::UnicodeString of(std::u16string_view text) {
  return {text.data(), static_cast<std::int32_t>(text.size())};
}

std::u16string text_of(const icu::UnicodeString& text) {
  return {text.getBuffer(), static_cast<std::size_t>(text.length())};
}

void check(UErrorCode error, const char* sentence) {
  if (error == U_REGEX_TIME_OUT) throw std::invalid_argument("The expression takes too long.");
  if (U_FAILURE(error)) throw std::invalid_argument(sentence);
}

std::uint32_t flags_of(const HostTextPattern::Options& options) {
  std::uint32_t flags = options.is_expression ? UREGEX_MULTILINE : UREGEX_LITERAL;
  if (options.ignores_case) flags |= UREGEX_CASE_INSENSITIVE;
  return flags;
}

/// Moves to the next match that is not empty; false behind the last.
bool find_next(icu::RegexMatcher& matcher) {
  UErrorCode error = U_ZERO_ERROR;
  bool found = matcher.find(error);
  while (found && matcher.start(error) == matcher.end(error)) found = matcher.find(error);
  check(error, "The text cannot be searched.");
  return found;
}

/// What takes the place of one match after the other.
class Replacements {
 public:
  Replacements(icu::RegexMatcher& matcher, std::u16string_view replacement, bool is_expression)
      : m_matcher(matcher), m_replacement(of(replacement)), m_is_expression(is_expression) {}

  /// For the match where the matcher stands.
  std::u16string next() {
    if (!m_is_expression) return text_of(m_replacement);
    UErrorCode error = U_ZERO_ERROR;
    // The text since the replacement before comes along.
    const std::int32_t skipped = m_matcher.start(error) - m_behind;
    m_behind = m_matcher.end(error);
    icu::UnicodeString written;
    m_matcher.appendReplacement(written, m_replacement, error);
    check(error, "The replacement names a group that the expression does not have.");
    return text_of(written).substr(static_cast<std::size_t>(skipped));
  }

 private:
  icu::RegexMatcher& m_matcher;
  icu::UnicodeString m_replacement;
  bool m_is_expression;
  std::int32_t m_behind = 0;  ///< end of the match before
};

}  // namespace

struct HostTextPattern::Compiled {
  std::unique_ptr<icu::RegexPattern> pattern;
  bool is_expression;

  std::unique_ptr<icu::RegexMatcher> matcher(const icu::UnicodeString& text) const {
    UErrorCode error = U_ZERO_ERROR;
    std::unique_ptr<icu::RegexMatcher> result(pattern->matcher(text, error));
    result->setTimeLimit(kStepLimit, error);
    check(error, "The text cannot be searched.");
    return result;
  }
};

HostTextPattern::HostTextPattern(std::u16string_view wanted, Options options)
    : m_compiled(std::make_unique<Compiled>()) {
  if (wanted.empty()) throw std::invalid_argument("There is nothing to look for.");
  UErrorCode error = U_ZERO_ERROR;
  UParseError place;
  m_compiled->pattern.reset(icu::RegexPattern::compile(of(wanted), flags_of(options), place, error));
  m_compiled->is_expression = options.is_expression;
  if (U_FAILURE(error))
    throw std::invalid_argument("\"" + odToUtf8(wanted) + "\" is no regular expression (" +
                                u_errorName(error) + ").");
}

HostTextPattern::~HostTextPattern() = default;
HostTextPattern::HostTextPattern(HostTextPattern&&) noexcept = default;
HostTextPattern& HostTextPattern::operator=(HostTextPattern&&) noexcept = default;

bool HostTextPattern::isIn(std::u16string_view text) const {
  const icu::UnicodeString searched = of(text);
  return find_next(*m_compiled->matcher(searched));
}

std::vector<HostTextPattern::Match> HostTextPattern::matches(
    std::u16string_view text, std::optional<std::u16string_view> replacement) const {
  const icu::UnicodeString searched = of(text);
  const auto matcher = m_compiled->matcher(searched);
  Replacements replacements(*matcher, replacement.value_or(u""), m_compiled->is_expression);
  std::vector<Match> found;
  UErrorCode error = U_ZERO_ERROR;
  while (find_next(*matcher)) {
    Match match{
        static_cast<std::size_t>(matcher->start(error)), static_cast<std::size_t>(matcher->end(error)), {}};
    if (replacement) match.replacement = replacements.next();
    found.push_back(std::move(match));
  }
  return found;
}
