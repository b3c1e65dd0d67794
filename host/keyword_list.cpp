#include "host/keyword_list.h"

#include <unicode/uchar.h>

#include <algorithm>

namespace {

constexpr char16_t kNoBreakSpace = 0xA0;

std::u16string folded(std::u16string_view text) {
  std::u16string result(text);
  for (char16_t& unit : result) unit = static_cast<char16_t>(u_foldCase(unit, U_FOLD_CASE_DEFAULT));
  return result;
}

bool equal_no_case(std::u16string_view a, std::u16string_view b) { return folded(a) == folded(b); }

bool is_capital(char16_t unit) { return u_isupper(unit); }

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
  const bool is_beginning = typed.size() <= word.size() && equal_no_case(typed, word.substr(0, typed.size()));
  return (is_beginning && typed.size() >= shortest_beginning(word)) ||
         equal_no_case(typed, capitals_of(word));
}

}  // namespace

HostKeywordList::HostKeywordList(std::u16string_view words) : m_words(read(words)) {
  const auto mark =
      std::find_if(m_words.begin(), m_words.end(), [](const Word& w) { return w.text == u"_"; });
  if (mark == m_words.end()) return;
  m_globals.assign(mark + 1, m_words.end());
  m_words.erase(mark, m_words.end());
}

std::vector<HostKeywordList::Word> HostKeywordList::read(std::u16string_view words) {
  std::vector<Word> result;
  for (std::size_t at = 0; at < words.size();) {
    const std::size_t end = std::min(words.find(u' ', at), words.size());
    std::u16string word(words.substr(at, end - at));
    at = end + 1;
    const bool hidden = word.starts_with(u'*');
    if (hidden) word.erase(0, 1);
    std::replace(word.begin(), word.end(), kNoBreakSpace, u' ');
    if (!word.empty()) result.push_back({std::move(word), hidden});
  }
  return result;
}

std::optional<int> HostKeywordList::find(std::u16string_view typed) const {
  if (!typed.starts_with(u'_')) return find(m_words, typed);
  const auto found = find(m_globals.empty() ? m_words : m_globals, typed.substr(1));
  const bool has_word = found && static_cast<std::size_t>(*found) < m_words.size();
  return has_word ? found : std::nullopt;
}

std::optional<int> HostKeywordList::find(const std::vector<Word>& words, std::u16string_view typed) {
  if (typed.empty()) return std::nullopt;
  const auto whole = std::find_if(words.begin(), words.end(),
                                  [typed](const Word& word) { return equal_no_case(typed, word.text); });
  if (whole != words.end()) return static_cast<int>(whole - words.begin());
  const auto short_form = std::find_if(words.begin(), words.end(),
                                       [typed](const Word& word) { return abbreviates(typed, word.text); });
  if (short_form == words.end()) return std::nullopt;
  return static_cast<int>(short_form - words.begin());
}

const std::u16string& HostKeywordList::globalName(std::size_t index) const {
  return index < m_globals.size() ? m_globals[index].text : name(index);
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
