#include "commands/find/text_search.h"

#include <algorithm>
#include <numeric>

#include "commands/base/locked_layer.h"
#include "commands/find/replace_in_text.h"
#include "editor/current_space.h"
#include "host/document.h"
#include "host/selection_set.h"
#include "od/db/OdDbBlockReference.h"
#include "od/db/OdDbDatabase.h"

namespace {

/// Adds a text, or the texts of an insert.
void add_texts(const OdDbObjectId& id, std::vector<OdDbObjectId>& texts) {
  const OdDbObjectPtr object = id.openObject();
  if (const auto insert = odCast<OdDbBlockReference>(object)) {
    const std::vector<OdDbObjectId> attributes = insert->attributes();
    std::copy_if(attributes.begin(), attributes.end(), std::back_inserter(texts),
                 [](const OdDbObjectId& each) { return !is_on_locked_layer(each); });
  } else if ((odCast<OdDbText>(object) || odCast<OdDbMText>(object)) && !is_on_locked_layer(id)) {
    texts.push_back(id);
  }
}

std::size_t count_in(const OdDbObjectId& id, const HostTextPattern& pattern) {
  const OdDbObjectPtr object = id.openObject();
  if (const auto text = odCast<OdDbMText>(object)) return count_matches(*text, pattern);
  return count_matches(*odCastOrThrow<OdDbText>(object), pattern);
}

std::size_t replace_matches(const OdDbObjectId& id, const HostTextPattern& pattern,
                            std::u16string_view replacement, std::optional<std::size_t> only = {}) {
  const OdDbObjectPtr object = id.openObject(OdDb::kForWrite);
  const auto block = odCast<OdDbMText>(object);
  const std::size_t replaced = block
                                   ? replace_in(*block, pattern, replacement, only)
                                   : replace_in(*odCastOrThrow<OdDbText>(object), pattern, replacement, only);
  hostEntUpd(id);
  return replaced;
}

}  // namespace

std::vector<OdDbObjectId> texts_to_search(const OdDbDatabase& database, const HostSelectionSet& selected) {
  std::vector<OdDbObjectId> texts;
  if (!selected.isEmpty()) {
    for (const OdDbObjectId& id : selected.ids()) add_texts(id, texts);
    return texts;
  }
  for (const OdDbObjectId& id : editing::open_current_space(database, OdDb::kForRead)->entities())
    add_texts(id, texts);
  return texts;
}

void text_search::setPattern(HostTextPattern pattern) {
  std::vector<std::size_t> counts;
  for (const OdDbObjectId& id : m_texts) counts.push_back(count_in(id, pattern));
  m_pattern = std::move(pattern);
  m_counts = std::move(counts);
  m_text = m_match = 0;
  skipTextsWithoutMatch();
}

std::size_t text_search::matchCount() const {
  return std::accumulate(m_counts.begin(), m_counts.end(), std::size_t{0});
}

std::size_t text_search::textCount() const {
  return m_counts.size() - static_cast<std::size_t>(std::count(m_counts.begin(), m_counts.end(), 0U));
}

std::optional<text_search::place> text_search::current() const {
  if (m_text == m_counts.size()) return std::nullopt;
  return place{m_texts[m_text], m_match};
}

void text_search::skipTextsWithoutMatch() {
  while (m_text < m_counts.size() && m_match >= m_counts[m_text]) {
    ++m_text;
    m_match = 0;
  }
}

bool text_search::settle() {
  skipTextsWithoutMatch();
  if (m_text < m_counts.size()) return true;
  m_text = m_match = 0;
  skipTextsWithoutMatch();
  return false;
}

bool text_search::next() {
  ++m_match;
  return settle();
}

void text_search::recount(std::size_t text) { m_counts[text] = count_in(m_texts[text], *m_pattern); }

void text_search::replace(std::u16string_view replacement) {
  const std::size_t before = m_counts[m_text];
  replace_matches(m_texts[m_text], *m_pattern, replacement, m_match);
  recount(m_text);
  // A replacement in which the pattern stands again is not looked at once more.
  m_match += m_counts[m_text] + 1 - std::min(before, m_counts[m_text] + 1);
  settle();
}

void text_search::replaceAll(std::u16string_view replacement) {
  for (std::size_t i = 0; i < m_texts.size(); ++i) {
    if (m_counts[i] == 0) continue;
    replace_matches(m_texts[i], *m_pattern, replacement);
    recount(i);
  }
}
