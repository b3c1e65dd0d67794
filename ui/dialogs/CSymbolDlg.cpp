#include "ui/dialogs/CSymbolDlg.h"

#include <algorithm>

#include "host/application.h"
#include "host/exports.h"
#include "host/prompt_text.h"
#include "ui/dialogs/character_names.h"
#include "ui/dialogs/dialog_display.h"
#include "ui/dialogs/recent_symbols.h"

namespace {

/// What drafters take most often is where they begin.
constexpr char32_t kDegree = U'\u00B0';

std::size_t block_of(char32_t character) {
  const auto& blocks = dialogs::unicode_blocks();
  const auto found = std::ranges::find_if(
      blocks, [character](const unicode_block& block) { return character <= block.last; });
  return static_cast<std::size_t>(found - blocks.begin());
}

}  // namespace

CSymbolDlg::CSymbolDlg(const mtext::format::string& font, IProfile* profile)
    : m_font(font), m_profile(profile) {
  if (profile) m_recent = dialogs::recent_symbols(*profile);
  m_selected = m_recent.empty() ? kDegree : m_recent.front();
  showBlock(block_of(m_selected));
}

void CSymbolDlg::showBlock(std::size_t block) {
  m_block = block;
  m_characters = dialogs::characters_of(blocks().at(block));
}

void CSymbolDlg::search(std::u16string_view text) {
  if (host::without_outer_blanks(text).empty()) return showBlock(m_block);
  m_characters = dialogs::find_characters(text);
  if (!m_characters.empty()) m_selected = m_characters.front();
}

bool CSymbolDlg::doModal() {
  DialogDisplay* const display = dialogs::display();
  if (!display || !display->show(*this)) return false;
  if (m_profile) dialogs::remember_symbol(*m_profile, m_selected);
  return true;
}

std::optional<std::u16string> hostGetSymbol(const mtext::format::string& font) {
  HostApplication* const application = host::application();
  CSymbolDlg dialog(font, application ? &application->profile() : nullptr);
  if (!dialog.doModal()) return {};
  return dialogs::text_of(dialog.selected());
}
