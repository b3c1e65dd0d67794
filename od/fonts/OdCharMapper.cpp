#include "od/fonts/OdCharMapper.h"

#include <unicode/ucnv.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace {

constexpr std::array<std::pair<int, int>, 18> kCodePageOfCharset{{
    {0, 1252},
    {77, 10000},
    {128, 932},
    {129, 949},
    {130, 1361},
    {134, 936},
    {136, 950},
    {161, 1253},
    {162, 1254},
    {163, 1258},
    {177, 1255},
    {178, 1256},
    {186, 1257},
    {204, 1251},
    {222, 874},
    {238, 1250},
    {255, 437},
    {2, 1252},
}};

struct CloseConverter {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, CloseConverter>;

std::string converterName(int codePage) {
  if (codePage == 0) return "windows-1252";
  if (codePage == 10000) return "macos-0_2-10.2";
  bool dos = codePage >= 437 && codePage < 870;
  return (dos ? "ibm-" : "windows-") + std::to_string(codePage);
}

Converter openConverter(int codePage) {
  UErrorCode status = U_ZERO_ERROR;
  Converter converter(ucnv_open(converterName(codePage).c_str(), &status));
  if (U_FAILURE(status)) return nullptr;
  ucnv_setFromUCallBack(converter.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &status);
  return converter;
}

}  // namespace

int OdCharMapper::getCodepageByCharset(unsigned short charset) {
  const auto* found =
      std::ranges::find(kCodePageOfCharset, static_cast<int>(charset), &std::pair<int, int>::first);
  return found == kCodePageOfCharset.end() ? 1252 : found->second;
}

std::string OdCharMapper::toBytes(char32_t character, int codePage) {
  if (character < 0x80) return {static_cast<char>(character)};
  Converter converter = openConverter(codePage);
  if (!converter || character > 0x10FFFF || U_IS_SURROGATE(character)) return {};
  std::array<char16_t, 2> units{};
  int32_t length = 0;
  U16_APPEND_UNSAFE(units, length, character);
  std::array<char, 8> bytes{};
  UErrorCode status = U_ZERO_ERROR;
  int32_t count = ucnv_fromUChars(converter.get(), bytes.data(), bytes.size(), units.data(), length, &status);
  if (U_FAILURE(status) || count > 2) return {};
  return {bytes.data(), static_cast<std::size_t>(count)};
}

char32_t OdCharMapper::toUnicode(std::string_view bytes, int codePage) {
  if (bytes.size() == 1 && static_cast<unsigned char>(bytes[0]) < 0x80) {
    return static_cast<unsigned char>(bytes[0]);
  }
  Converter converter = openConverter(codePage);
  if (!converter || bytes.empty()) return 0;
  std::array<char16_t, 4> units{};
  UErrorCode status = U_ZERO_ERROR;
  int32_t count = ucnv_toUChars(converter.get(), units.data(), units.size(), bytes.data(),
                                static_cast<int32_t>(bytes.size()), &status);
  bool single = count == 1 && !U16_IS_SURROGATE(units[0]) && units[0] != 0xFFFD;
  return U_SUCCESS(status) && single ? units[0] : 0;
}
