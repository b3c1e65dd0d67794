#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace dxf {

/// One code page as tables: 256 single bytes, and for the double-byte ones a row of 256 for each lead byte
/// from 0x80. The bytes below 0x80 always are ASCII.
class CodePage {
 public:
  /// A page with ASCII alone.
  CodePage();

  /// Gives a meaning to a byte from 0x80. 0 is no meaning.
  void map(unsigned char byte, char16_t character);
  /// Gives a meaning to a pair of bytes. 0 is no meaning.
  void map(unsigned char lead, unsigned char trail, char16_t character);
  /// Chooses the bytes that are written for a character that several bytes mean.
  void prefer(char16_t character, unsigned char lead, unsigned char trail);

  /// The meaning of a pair of bytes, 0 where there is none.
  char16_t pair(unsigned char lead, unsigned char trail) const;

  /// Appends the characters of `bytes` to `text`; a byte `b` without a meaning is appended as 0xDC00 + b.
  void decode(std::string_view bytes, std::u16string& text) const;

  /// Appends the bytes of a character. False, with nothing appended, where the code page lacks it.
  bool encode(char32_t character, std::string& bytes) const;

 private:
  std::array<char16_t, 256> singles_{};
  std::vector<char16_t> pairs_;  ///< empty, or 128 rows of 256
  std::unordered_map<char32_t, std::string> bytes_of_;
};

/// The code page by its name in the header variable $DWGCODEPAGE, without regard to case; Windows 1252 for a
/// name that is not known.
std::shared_ptr<const CodePage> find_code_page(std::string_view name);

}  // namespace dxf
