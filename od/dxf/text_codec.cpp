#include "od/dxf/text_codec.h"

#include <algorithm>

#include "od/dxf/caret.h"
#include "od/dxf/code_page.h"
#include "od/dxf/unicode_escapes.h"
#include "od/dxf/utf8.h"

namespace dxf {
namespace {

bool is_plain_ascii(std::string_view bytes) {
  return std::ranges::all_of(bytes, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

bool is_high(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool is_low(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

// The code point at `at`; a lone surrogate is itself.
char32_t code_point(std::u16string_view text, std::size_t at) {
  const char16_t unit = text[at];
  if (!is_high(unit) || at + 1 >= text.size() || !is_low(text[at + 1])) return unit;
  return 0x10000 + ((unit - 0xD800u) << 10) + (text[at + 1] - 0xDC00u);
}

// Only bytes from 0x80 ever come as lone surrogates; others would tear the file's lines apart.
bool is_kept_byte(char32_t character) { return character >= 0xDC80 && character <= 0xDCFF; }

bool is_surrogate(char32_t character) { return character >= 0xD800 && character < 0xE000; }

}  // namespace

TextCodec TextCodec::utf8(Form form) { return TextCodec(nullptr, form); }

TextCodec TextCodec::code_page(std::string_view name, Form form) {
  return TextCodec(find_code_page(name), form);
}

std::u16string TextCodec::decode(std::string_view bytes) const {
  std::u16string text;
  text.reserve(bytes.size());
  if (is_plain_ascii(bytes)) {
    text.assign(bytes.begin(), bytes.end());
  } else if (page_) {
    page_->decode(bytes, text);
  } else {
    decode_utf8(bytes, text);
  }
  if (form_ == Form::ascii) decode_carets(text);
  return text;
}

bool TextCodec::append(char32_t character, std::string& bytes) const {
  if (is_kept_byte(character)) {
    bytes += static_cast<char>(character - 0xDC00);
    return true;
  }
  if (character < 0x20 || character == '^') {
    if (form_ == Form::ascii) return append_caret(static_cast<char>(character), bytes);
    // A zero byte would end the string.
    if (character == 0) return false;
  }
  if (page_) return page_->encode(character, bytes);
  if (is_surrogate(character)) return false;
  encode_utf8(character, bytes);
  return true;
}

std::string TextCodec::encode(std::u16string_view text) const {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char32_t character = code_point(text, at);
    const std::size_t units = character > 0xFFFF ? 2 : 1;
    if (!append(character, bytes)) {
      for (const char16_t unit : unicode_escapes(text.substr(at, units))) bytes += static_cast<char>(unit);
    }
    at += units - 1;
  }
  return bytes;
}

std::u16string TextCodec::escape_missing(std::u16string_view text) const {
  std::u16string escaped;
  escaped.reserve(text.size());
  std::string bytes;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char32_t character = code_point(text, at);
    const std::u16string_view units = text.substr(at, character > 0xFFFF ? 2 : 1);
    bytes.clear();
    if (append(character, bytes)) {
      escaped += units;
    } else {
      escaped += unicode_escapes(units);
    }
    at += units.size() - 1;
  }
  return escaped;
}

}  // namespace dxf
