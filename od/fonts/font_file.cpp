#include "od/fonts/font_file.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "od/base/OdError.h"
#include "od/base/unicode.h"

namespace {

constexpr std::uintmax_t kLargestFont = std::uintmax_t{256} << 20;

}  // namespace

std::string odReadFontFile(const std::string& path) {
  std::error_code failure;
  if (!std::filesystem::is_regular_file(path, failure)) {
    throw OdError(eFileNotFound, "There is no font file " + path);
  }
  if (std::filesystem::file_size(path, failure) > kLargestFont) {
    throw OdError(eFileAccessErr, "The font file " + path + " is too large");
  }
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  if (!file) throw OdError(eFileAccessErr, "The font file " + path + " cannot be read");
  return std::move(bytes).str();
}

std::u16string_view odFileNameOf(std::u16string_view path) {
  return path.substr(path.find_last_of(u"/\\") + 1);
}

std::string_view odFileNameOf(std::string_view path) { return path.substr(path.find_last_of("/\\") + 1); }

std::u16string odStemOf(std::u16string_view path) {
  std::u16string_view name = odFileNameOf(path);
  return std::u16string(name.substr(0, name.rfind(u'.')));
}

std::u16string odExtensionOf(std::u16string_view path) {
  std::u16string_view name = odFileNameOf(path);
  auto dot = name.rfind(u'.');
  return dot == name.npos ? std::u16string() : odLowerAscii(name.substr(dot + 1));
}
