#include <algorithm>

#include "editor/editable.h"
#include "editor/list_labels.h"
#include "editor/rich_text/read_html.h"
#include "editor/rich_text/read_rtf.h"
#include "editor/rich_text/to_multitext.h"
#include "editor/rich_text/write_html.h"
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

/// What is selected, for programs that know HTML.
std::u16string html_text(const mtext::geom_multitext& text, double height) {
  mtext::multitext selected;
  for (const auto& range : editing::selections_of(text))
    for (std::size_t at = range.begin; at < range.end; ++at)
      selected.parts.push_back(text.parts[at].part().clone());
  return rich::write_html(selected, height);
}

/// The formats of other programs that are read, the better one first.
struct foreign_format {
  std::u16string_view name;
  rich::text (*read)(std::u16string_view source);
};

constexpr foreign_format kForeignFormats[] = {{kHtmlFormat, rich::read_html}, {kRtfFormat, rich::read_rtf}};

/// Whether the clipboard holds a format of another program.
bool holds_foreign(HostClipboard& board) {
  return std::any_of(
      std::begin(kForeignFormats), std::end(kForeignFormats),
      [&board](const foreign_format& each) { return board.has(board.registerFormat(each.name)); });
}

/// The text of another program; one without characters where there is none.
rich::text foreign_text(HostClipboard& board) {
  for (const foreign_format& each : kForeignFormats)
    if (const auto source = board.get(board.registerFormat(each.name)))
      if (rich::text read = each.read(*source); !read.empty()) return read;
  return {};
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
  if (const unsigned format = board->registerFormat(kHtmlFormat))
    board->set(format, html_text(m_text, textHeight()));
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
    mtext::parse(codes, format, logical, {});
    bindFields(logical);
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
  return board && (board->has(CF_UNICODETEXT) || isPrivateFormatAvailable() || holds_foreign(*board));
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

/// A single line holds no formats: it gets the characters.
void ExMTextEditable::pasteForeign(const rich::text& foreign, bool single_line, bool non_empty) {
  if (single_line) {
    const mtext::multitext read = rich::to_multitext(foreign, m_default_format);
    const std::u16string plain = mtext::serialize_raw(read, /*tilde_spaces=*/false);
    return pastePlain(non_empty ? on_one_line(plain) : plain);
  }
  replaceSelections([&](const mtext::format::string& format, std::size_t) {
    return mtext::to_geom(rich::to_multitext(foreign, format), textHeight(), *m_finder);
  });
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
  if (const auto plain = board->get(CF_UNICODETEXT))
    return pastePlain(non_empty ? on_one_line(*plain) : *plain);
  if (const rich::text foreign = foreign_text(*board); !foreign.empty())
    pasteForeign(foreign, single_line, non_empty);
}
