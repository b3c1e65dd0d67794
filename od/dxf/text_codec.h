#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "od/dxf/form.h"

namespace dxf {

class CodePage;

/// Turns the bytes of a drawing's strings into UTF-16 and back.
///
/// A byte `b` that the encoding does not know becomes the lone low surrogate 0xDC00 + b, and that becomes the
/// byte again: nothing is lost on the way through. Control characters are written as `^` and a letter in the
/// text form, and as themselves in the binary form. The escapes `\U+` and `\M+` stay as they are, because a
/// user may have typed them; see `decode_unicode_escapes`.
class TextCodec {
 public:
  /// Strings in UTF-8, as drawings from R2007 hold them.
  static TextCodec utf8(Form form);
  /// Strings in the code page that the header variable $DWGCODEPAGE names, without regard to case. A name
  /// that is not known means Windows 1252.
  static TextCodec code_page(std::string_view name, Form form);

  /// Never fails.
  std::u16string decode(std::string_view bytes) const;

  /// Never fails. What the code page lacks, and half a surrogate pair, is written as `\U+XXXX`.
  std::string encode(std::u16string_view text) const;

  /// `text` with all that the code page lacks replaced by `\U+XXXX`: what `decode` gives after `encode`.
  std::u16string escape_missing(std::u16string_view text) const;

  Form form() const { return form_; }

 private:
  TextCodec(std::shared_ptr<const CodePage> page, Form form) : page_(std::move(page)), form_(form) {}

  bool append(char32_t character, std::string& bytes) const;

  std::shared_ptr<const CodePage> page_;  ///< null for UTF-8
  Form form_;
};

}  // namespace dxf
