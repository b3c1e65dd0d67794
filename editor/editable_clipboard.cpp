#include <algorithm>

#include "editor/editable.h"
#include "editor/list_labels.h"
#include "editor/selection_scope.h"
#include "editor/word_bounds.h"
#include "host/application.h"
#include "host/clipboard.h"
#include "host/exports.h"
#include "host/translate.h"
#include "mtext/flatten.h"
#include "mtext/format_at.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "mtext/to_geom.h"

namespace {

constexpr int kPrivateFormatName = 1031;

HostClipboard* clipboard() {
  HostApplication* application = host::application();
  return application ? &application->clipboard() : nullptr;
}

/// Number of the format that keeps all formatting; 0 where it cannot be had.
unsigned private_format(HostClipboard& board) {
  return board.registerFormat(host::resource_string(kPrivateFormatName));
}

/// What is selected, as format codes that say what differs from the text in front of it.
std::u16string coded_text(const mtext::geom_multitext& text, const mtext::format::string& base,
                          double height) {
  std::u16string result;
  for (const auto& range : editing::selections_of(text)) {
    auto current = mtext::format::insertion_format(text, base, range.begin);
    auto paragraph = mtext::paragraph_at(text, range.begin);
    mtext::serialize_state state;
    bool px_written = false;
    for (std::size_t at = range.begin; at < range.end; ++at)
      mtext::serialize(result, height, paragraph, base, current, state, text.parts[at].part(), px_written,
                       /*plain_spaces=*/false);
    mtext::serialize(result, state);
  }
  return result;
}

/// Line ends as blanks, so that the text stays one line.
std::u16string on_one_line(std::u16string text) {
  std::erase(text, u'\r');
  for (char16_t& unit : text)
    if (unit == u'\n') unit = u' ';
  return text;
}

}  // namespace

std::u16string ExMTextEditable::selectedText() const {
  std::u16string result;
  for (const auto& range : selections())
    for (std::size_t at = range.begin; at < range.end; ++at)
      mtext::serialize_raw(result, m_text.parts[at].part(), /*tilde_spaces=*/true);
  return result;
}

bool ExMTextEditable::copy() const {
  const std::u16string plain = selectedText();
  HostClipboard* board = clipboard();
  if (plain.empty() || !board || !board->empty() || !board->set(CF_UNICODETEXT, plain)) return false;
  if (const unsigned format = private_format(*board))
    board->set(format, coded_text(m_text, m_default_format, textHeight()));
  return true;
}

bool ExMTextEditable::cut() {
  if (!copy()) return false;
  deleteSelection(/*mark_changed=*/true);
  return true;
}

void ExMTextEditable::pasteCodes(const std::u16string& codes) {
  replaceSelections([&](const mtext::format::string& format, std::size_t) {
    mtext::multitext logical;
    mtext::parse(codes, format, logical, m_fields);
    return mtext::to_geom(logical, textHeight(), *m_finder);
  });
}

bool ExMTextEditable::caretMeetsNewLabel() {
  const auto carets = selections();
  return std::any_of(carets.begin(), carets.end(), [this](const auto& caret) {
    return editing::opens_with_new_label(m_text, editing::paragraph_start(m_text, caret.begin), m_letters);
  });
}

bool ExMTextEditable::isPrivateFormatAvailable() const {
  HostClipboard* board = clipboard();
  const unsigned format = board ? private_format(*board) : 0;
  return format != 0 && board->has(format);
}

bool ExMTextEditable::canPaste() const {
  HostClipboard* board = clipboard();
  return board && (board->has(CF_UNICODETEXT) || isPrivateFormatAvailable());
}

/// Characters as they are: codes in plain text are letters.
void ExMTextEditable::pastePlain(std::u16string_view text) {
  for (std::size_t end; (end = text.find(u'\n')) != std::u16string_view::npos; text.remove_prefix(end + 1)) {
    insertText(text.substr(0, end));
    insertParagraph(/*column_break=*/false);
    // A label that now stands behind the caret takes the caret behind it. Counting can wait.
    if (caretMeetsNewLabel()) renumber();
  }
  insertText(text);
}

void ExMTextEditable::paste(bool single_line, bool non_empty) {
  deleteSelection(/*mark_changed=*/false);
  // The lines are laid out anew even if nothing takes the place of what was erased; the lists are not
  // counted.
  m_layout_dirty = true;
  HostClipboard* board = clipboard();
  if (!board) return;
  if (!single_line) {
    const unsigned format = private_format(*board);
    if (const auto codes = format ? board->get(format) : std::nullopt) return pasteCodes(*codes);
  }
  const auto plain = board->get(CF_UNICODETEXT);
  if (plain) pastePlain(non_empty ? on_one_line(*plain) : *plain);
}
