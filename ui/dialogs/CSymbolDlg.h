#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "mtext/format_string.h"
#include "ui/dialogs/unicode_blocks.h"

class IProfile;

/// The characters of all writing systems, as a dialog from which one is taken.
class CSymbolDlg {
 public:
  /// `font` is what the characters are shown in. `profile` remembers what was used last and has to outlive
  /// the dialog; null remembers nothing.
  CSymbolDlg(const mtext::format::string& font, IProfile* profile);

  const mtext::format::string& font() const { return m_font; }
  const std::vector<unicode_block>& blocks() const { return dialogs::unicode_blocks(); }
  /// What was used last, newest first.
  const std::vector<char32_t>& recent() const { return m_recent; }

  /// The characters to choose from: those of the block, or what the search finds.
  const std::vector<char32_t>& characters() const { return m_characters; }
  /// The block that is shown, or shown again after the search.
  std::size_t block() const { return m_block; }
  void showBlock(std::size_t block);
  /// Shows the characters that a text looks for; the text of blanks goes back to the block. The first one is
  /// selected then, unless nothing was found.
  void search(std::u16string_view text);

  char32_t selected() const { return m_selected; }
  void select(char32_t character) { m_selected = character; }

  /// Shows the dialog until it is closed; true for OK, and the character counts as used.
  bool doModal();

 private:
  mtext::format::string m_font;
  IProfile* m_profile;
  std::vector<char32_t> m_recent;
  std::vector<char32_t> m_characters;
  std::size_t m_block = 0;
  char32_t m_selected;
};

/// Asks the user for a character in a dialog that shows them in `font`; one or two units, nothing when it was
/// cancelled.
std::optional<std::u16string> hostGetSymbol(const mtext::format::string& font);
