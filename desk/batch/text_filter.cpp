#include "desk/batch/text_filter.h"

#include <algorithm>
#include <unordered_set>

#include "desk/batch/name_pattern.h"
#include "od/base/unicode.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbSymbolTable.h"

namespace {

std::vector<std::u16string> utf16(const std::vector<std::string>& words) {
  std::vector<std::u16string> texts;
  for (const std::string& word : words) texts.push_back(odToUtf16(word));
  return texts;
}

bool isNamed(std::u16string_view name, const std::vector<std::u16string>& patterns) {
  return patterns.empty() ||
         std::ranges::any_of(patterns, [&](const auto& pattern) { return matchesName(name, pattern); });
}

/// The blocks whose texts somebody wrote there. Others without a name of their own picture an entity.
std::unordered_set<OdDbObjectId> writtenBlocks(const OdDbDatabase& database) {
  std::unordered_set<OdDbObjectId> found;
  const auto blocks = odCast<OdDbSymbolTable>(database.getBlockTableId().openObject());
  if (!blocks) return found;
  for (const OdDbObjectId& id : blocks->records()) {
    const auto block = odCast<OdDbBlockTableRecord>(id.openObject());
    if (block && (block->isLayout() || !block->isAnonymous())) found.insert(id);
  }
  return found;
}

}  // namespace

TextFilter::TextFilter(const TextFilterOptions& options)
    : m_layers(utf16(options.layers)),
      m_styles(utf16(options.styles)),
      m_kinds(options.kinds),
      m_all_blocks(options.all_blocks) {
  if (!options.match.empty())
    m_match.emplace(odToUtf16(options.match), HostTextPattern::Options{.is_expression = true});
}

HostSelectionSet TextFilter::selected(const OdDbDatabase& database) const {
  const std::unordered_set<OdDbObjectId> blocks =
      m_all_blocks ? writtenBlocks(database) : std::unordered_set{database.getActiveSpaceId()};
  HostSelectionSet found;
  for (const DrawingText& text : textsOf(database))
    if (blocks.contains(text.block_id) && takes(text)) found.add(text.id);
  return found;
}

bool TextFilter::takes(const DrawingText& text) const {
  return isNamed(text.layer, m_layers) && isNamed(text.style, m_styles) &&
         (m_kinds.empty() || std::ranges::find(m_kinds, text.kind) != m_kinds.end()) &&
         (!m_match || m_match->isIn(text.plain));
}
