#pragma once

#include <optional>
#include <string_view>

namespace rich {

/// One piece of RTF.
struct rtf_token {
  enum kind { open, close, word, character, byte } kind;
  std::u16string_view name = {};   ///< of a control word, or the one sign of a control symbol
  std::optional<int> number = {};  ///< behind a control word
  char16_t value = 0;              ///< of a character, or of a byte in the code page of the text
};

/// Cuts RTF into its pieces. Numbers beyond 6 digits lose the rest of their digits.
class rtf_tokens {
 public:
  explicit rtf_tokens(std::u16string_view source) : m_rest(source) {}
  /// Nothing at the end of the input.
  std::optional<rtf_token> next();
  /// Passes over bytes that belong to no text.
  void skip(std::size_t count) { m_rest.remove_prefix(count < m_rest.size() ? count : m_rest.size()); }

 private:
  rtf_token control();
  std::u16string_view m_rest;
};

}  // namespace rich
