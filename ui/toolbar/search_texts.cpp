#include "ui/toolbar/search_texts.h"

#include "editor/smart_edit.h"
#include "host/events.h"
#include "host/regula_desk.h"
#include "host/sibling.h"
#include "host/translate.h"
#include "ui/toolbar/CMTextEdit.h"

namespace toolbar {
namespace {

constexpr int kButton = 2;
constexpr int kNotInstalled = 1068;

/// The letters around the newest caret, up to whatever is no letter.
std::u16string word_at_caret(const ExMTextEditable& text) {
  const auto& parts = text.text().parts;
  const auto is_letter = [&parts](std::size_t at) { return parts[at].type() == mtext::part_string; };
  std::size_t begin = text.selections().back().caret(), end = begin;
  while (begin > 0 && is_letter(begin - 1)) --begin;
  while (end < parts.size() && is_letter(end)) ++end;
  std::u16string word;
  for (; begin < end; ++begin) word += static_cast<const mtext::geom_word&>(parts[begin]).text;
  return word;
}

}  // namespace

std::optional<text_change> search_texts(CMTextEdit& bar) {
  const auto desk = host::sibling<IRegulaDesk>();
  if (desk) {
    const ExMTextEditable& text = bar.editable();
    std::u16string wanted = text.selectedText();
    if (wanted.empty()) wanted = word_at_caret(text);
    const HostPixel at = bar.menuPlace(kButton);
    desk->search(bar.window(), wanted.c_str(), at.x, at.y);
  } else {
    hostAlert(host::resource_string(kNotInstalled));
  }
  return {};
}

}  // namespace toolbar
