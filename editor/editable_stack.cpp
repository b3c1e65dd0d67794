#include "editor/editable.h"
#include "editor/selection_scope.h"
#include "mtext/flatten.h"
#include "mtext/format_at.h"
#include "mtext/serialize.h"
#include "mtext/to_geom.h"

namespace {

using mtext::geom_multitext;

enum stack_kind : std::uint32_t { kSlash = 0, kCaret = 1, kHash = 2 };
constexpr std::u16string_view kSeparators = u"/^#";

bool holds_stack(const geom_multitext& text) {
  for (const auto& part : text.parts)
    if (part.type() == mtext::part_stack) return true;
  return false;
}

/// The text with each stack as the characters it is written with; everything else stays.
geom_multitext unstacked(const geom_multitext& text, double height, const mtext::string_size_finder& finder) {
  geom_multitext result = text;
  for (std::size_t at = result.parts.size(); at-- > 0;) {
    if (result.parts[at].type() != mtext::part_stack) continue;
    const auto& stack = static_cast<const mtext::geom_stack&>(result.parts[at]);
    const std::u16string plain = stack.numerator + kSeparators[stack.kind] + stack.denominator;
    const auto letters = mtext::to_geom(plain, stack.format, height, finder);
    result.erase(at, 1, /*drop_empty=*/true);
    result.insert(at, letters);
  }
  return result;
}

}  // namespace

void ExMTextEditable::rebuildSelections(const rebuilding& make) {
  for (mtext::marks::selection* range : editing::selection_marks(m_text)) {
    if (range->empty()) continue;
    const auto format = mtext::format::insertion_format(m_text, m_default_format, *range);
    std::optional<geom_multitext> made = make(m_text.slice(range->begin, range->end - range->begin), format);
    if (!made) continue;
    const std::size_t begin = range->begin;
    made->marks.erase_if(
        [](const auto& mark) { return dynamic_cast<const mtext::marks::selection*>(&mark); });
    const std::size_t count = made->parts.size();
    eraseRange(*range);
    m_text.insert(begin, std::move(*made));
    *range = mtext::marks::selection(begin, begin + count);
  }
  m_layout_dirty = true;
  recomputeCurrentFormats();
}

void ExMTextEditable::moveToHalf(editing::stack_half half) {
  using editing::stack_half;
  rebuildSelections([this, half](const geom_multitext& text, const mtext::format::string& format) {
    const stack_half before = text.parts.size() == 1 ? editing::half_of(text.parts[0]) : stack_half::none;
    const std::u16string letters = before == stack_half::none
                                       ? mtext::serialize_raw(mtext::flatten(text), /*tilde_spaces=*/false)
                                       : editing::letters_of_half(text.parts[0]);
    if (before == half) return std::optional(mtext::to_geom(letters, format, textHeight(), *m_finder));
    const std::u16string none;
    const bool above = half == stack_half::upper;
    const mtext::stack made(format, above ? letters : none, above ? none : letters, kCaret);
    return std::optional(mtext::to_geom(made, textHeight(), *m_finder));
  });
}

void ExMTextEditable::superscript() { moveToHalf(editing::stack_half::upper); }
void ExMTextEditable::subscript() { moveToHalf(editing::stack_half::lower); }

void ExMTextEditable::stackSelection() {
  rebuildSelections([this](const geom_multitext& text,
                           const mtext::format::string& format) -> std::optional<geom_multitext> {
    if (holds_stack(text)) return unstacked(text, textHeight(), *m_finder);
    const std::u16string raw = mtext::serialize_raw(mtext::flatten(text), /*tilde_spaces=*/false);
    const std::size_t at = raw.find_first_of(kSeparators);
    if (at == std::u16string::npos) return std::nullopt;
    const auto kind = static_cast<std::uint32_t>(kSeparators.find(raw[at]));
    return mtext::to_geom(mtext::stack(format, raw.substr(0, at), raw.substr(at + 1), kind), textHeight(),
                          *m_finder);
  });
}
