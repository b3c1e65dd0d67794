#include "od/dxf/code_page.h"

namespace dxf {

CodePage::CodePage() {
  for (char16_t c = 0; c < 0x80; ++c) singles_[c] = c;
}

void CodePage::map(unsigned char byte, char16_t character) {
  if (singles_[byte]) bytes_of_.erase(singles_[byte]);
  singles_[byte] = character;
  if (character) bytes_of_.try_emplace(character, 1, static_cast<char>(byte));
}

void CodePage::map(unsigned char lead, unsigned char trail, char16_t character) {
  if (pairs_.empty()) pairs_.resize(128 * 256);
  pairs_[(lead - 0x80u) * 256u + trail] = character;
  if (character)
    bytes_of_.try_emplace(character, std::string{static_cast<char>(lead), static_cast<char>(trail)});
}

void CodePage::prefer(char16_t character, unsigned char lead, unsigned char trail) {
  if (pair(lead, trail) == character)
    bytes_of_[character] = {static_cast<char>(lead), static_cast<char>(trail)};
}

char16_t CodePage::pair(unsigned char lead, unsigned char trail) const {
  if (lead < 0x80 || pairs_.empty()) return 0;
  return pairs_[(lead - 0x80u) * 256u + trail];
}

void CodePage::decode(std::string_view bytes, std::u16string& text) const {
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    const char16_t both =
        at + 1 < bytes.size() ? pair(byte, static_cast<unsigned char>(bytes[at + 1])) : u'\0';
    if (both) {
      text += both;
      ++at;
    } else if (byte == 0 || singles_[byte]) {
      text += singles_[byte];
    } else {
      text += static_cast<char16_t>(0xDC00 + byte);
    }
  }
}

bool CodePage::encode(char32_t character, std::string& bytes) const {
  if (character < 0x80) {
    bytes += static_cast<char>(character);
    return true;
  }
  const auto found = bytes_of_.find(character);
  if (found == bytes_of_.end()) return false;
  bytes += found->second;
  return true;
}

}  // namespace dxf
