#include "od/dxf/utf8.h"

namespace dxf {
namespace {

struct Sequence {
  char32_t character = 0;
  std::size_t length = 0;  ///< 0 for an ill-formed sequence
};

unsigned char byte_at(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0;
}

// Overlong forms, surrogates and what lies beyond U+10FFFF are ill-formed.
bool is_well_formed(char32_t character, std::size_t length) {
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  return character >= kLeast[length] && character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
}

Sequence sequence_at(std::string_view bytes, std::size_t at) {
  const unsigned char lead = byte_at(bytes, at);
  if (lead < 0x80) return {lead, 1};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4) return {};
  char32_t character = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const unsigned char next = byte_at(bytes, at + i);
    if ((next & 0xC0) != 0x80) return {};
    character = character << 6 | (next & 0x3Fu);
  }
  return is_well_formed(character, length) ? Sequence{character, length} : Sequence{};
}

void append_utf16(char32_t character, std::u16string& text) {
  if (character < 0x10000) {
    text += static_cast<char16_t>(character);
  } else {
    text += static_cast<char16_t>(0xD7C0 + (character >> 10));
    text += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
  }
}

}  // namespace

void decode_utf8(std::string_view bytes, std::u16string& text) {
  for (std::size_t at = 0; at < bytes.size();) {
    const Sequence sequence = sequence_at(bytes, at);
    if (sequence.length == 0) {
      text += static_cast<char16_t>(0xDC00 + byte_at(bytes, at++));
    } else {
      append_utf16(sequence.character, text);
      at += sequence.length;
    }
  }
}

void encode_utf8(char32_t character, std::string& bytes) {
  const auto tail = [&](int shift) { bytes += static_cast<char>(0x80 | (character >> shift & 0x3F)); };
  if (character < 0x80) {
    bytes += static_cast<char>(character);
  } else if (character < 0x800) {
    bytes += static_cast<char>(0xC0 | character >> 6);
    tail(0);
  } else if (character < 0x10000) {
    bytes += static_cast<char>(0xE0 | character >> 12);
    tail(6);
    tail(0);
  } else {
    bytes += static_cast<char>(0xF0 | character >> 18);
    tail(12);
    tail(6);
    tail(0);
  }
}

}  // namespace dxf
