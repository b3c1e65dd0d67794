#include "host/keyword_list.h"

#include <algorithm>

#include "od/base/unicode.h"

namespace {

bool is_capital(char16_t unit) { return unit >= u'A' && unit <= u'Z'; }

std::u16string capitals_of(std::u16string_view word) {
  std::u16string capitals;
  std::copy_if(word.begin(), word.end(), std::back_inserter(capitals), is_capital);
  return capitals;
}

/// Length of the shortest beginning that holds all capitals; the whole word if it has none.
std::size_t shortest_beginning(std::u16string_view word) {
  const auto last = std::find_if(word.rbegin(), word.rend(), is_capital);
  return last == word.rend() ? word.size() : static_cast<std::size_t>(word.rend() - last);
}

bool abbreviates(std::u16string_view typed, std::u16string_view word) {
  const bool is_beginning = typed.size() <= word.size() && odEqualNoCase(typed, word.substr(0, typed.size()));
  return (is_beginning && typed.size() >= shortest_beginning(word)) ||
         odEqualNoCase(typed, capitals_of(word));
}

}  // namespace

HostKeywordList::HostKeywordList(std::u16string_view words) {
  for (std::size_t at = 0; at < words.size();) {
    const std::size_t end = std::min(words.find(u' ', at), words.size());
    std::u16string_view word = words.substr(at, end - at);
    at = end + 1;
    const bool hidden = word.starts_with(u'*');
    if (hidden) word.remove_prefix(1);
    if (!word.empty()) m_words.push_back({std::u16string(word), hidden});
  }
}

std::optional<int> HostKeywordList::find(std::u16string_view typed) const {
  if (typed.empty()) return std::nullopt;
  const auto whole = std::find_if(m_words.begin(), m_words.end(),
                                  [typed](const Word& word) { return odEqualNoCase(typed, word.text); });
  if (whole != m_words.end()) return static_cast<int>(whole - m_words.begin());
  const auto short_form = std::find_if(m_words.begin(), m_words.end(),
                                       [typed](const Word& word) { return abbreviates(typed, word.text); });
  if (short_form == m_words.end()) return std::nullopt;
  return static_cast<int>(short_form - m_words.begin());
}

std::u16string HostKeywordList::shown() const {
  std::u16string text;
  for (const Word& word : m_words) {
    if (word.hidden) continue;
    if (!text.empty()) text += u'/';
    text += word.text;
  }
  return text;
}
