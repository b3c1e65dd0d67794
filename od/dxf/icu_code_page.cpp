#include <unicode/ucnv.h>

#include "od/base/OdError.h"
#include "od/dxf/code_page.h"
#include "od/dxf/code_page_name.h"
#include "od/dxf/johab.h"

namespace dxf {
namespace {

struct CloseConverter {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, CloseConverter>;

Converter open_converter(const std::string& icu_name) {
  UErrorCode error = U_ZERO_ERROR;
  Converter converter(ucnv_open(icu_name.c_str(), &error));
  ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
  ucnv_setFromUCallBack(converter.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
  if (U_FAILURE(error)) throw OdError("The conversion table " + icu_name + " is missing.");
  return converter;
}

// The one character that all of `bytes` together mean, or 0.
char16_t character_of(UConverter* converter, std::string_view bytes) {
  UErrorCode error = U_ZERO_ERROR;
  char16_t units[4] = {};
  const int count = ucnv_toUChars(converter, units, 4, bytes.data(), static_cast<int>(bytes.size()), &error);
  return U_SUCCESS(error) && count == 1 ? units[0] : u'\0';
}

void map_pairs(UConverter* converter, CodePage& page, unsigned char lead) {
  for (unsigned trail = 0x30; trail < 0xFF; ++trail) {
    const char bytes[] = {static_cast<char>(lead), static_cast<char>(trail)};
    const char16_t character = character_of(converter, {bytes, 2});
    if (character) page.map(lead, static_cast<unsigned char>(trail), character);
  }
}

// Some characters stand twice in a code page; ICU knows which of the two programs write.
void prefer_usual_bytes(UConverter* converter, CodePage& page) {
  for (char32_t character = 0x80; character < 0x10000; ++character) {
    UErrorCode error = U_ZERO_ERROR;
    const auto unit = static_cast<char16_t>(character);
    char bytes[8] = {};
    if (ucnv_fromUChars(converter, bytes, 8, &unit, 1, &error) == 2 && U_SUCCESS(error))
      page.prefer(unit, static_cast<unsigned char>(bytes[0]), static_cast<unsigned char>(bytes[1]));
  }
}

struct Correction {
  std::string_view icu_name;
  unsigned char byte;
  char16_t character;
};

// Where ICU's tables, which come from the mainframe, differ from what the systems that drawings come from do.
constexpr Correction kCorrections[] = {{"ibm-437", 0xE6, 0x00B5}, {"ibm-852", 0xAA, 0x00AC},
                                       {"ibm-861", 0xE6, 0x00B5}, {"ibm-864", 0xF1, 0x0651},
                                       {"ibm-869", 0x88, 0x00B7}, {"ibm-869", 0xEF, 0x0384}};

std::shared_ptr<const CodePage> make_page(const std::string& icu_name) {
  const Converter converter = open_converter(icu_name);
  auto page = std::make_shared<CodePage>();
  const bool double_byte = ucnv_getMaxCharSize(converter.get()) > 1;
  for (unsigned byte = 0x80; byte < 0x100; ++byte) {
    const char one = static_cast<char>(byte);
    const char16_t character = character_of(converter.get(), {&one, 1});
    if (character) {
      page->map(static_cast<unsigned char>(byte), character);
    } else if (double_byte) {
      map_pairs(converter.get(), *page, static_cast<unsigned char>(byte));
    }
  }
  for (const Correction& correction : kCorrections) {
    if (correction.icu_name == icu_name) page->map(correction.byte, correction.character);
  }
  if (double_byte) prefer_usual_bytes(converter.get(), *page);
  return page;
}

}  // namespace

std::shared_ptr<const CodePage> find_code_page(std::string_view name) {
  const std::string icu_name = icu_code_page_name(name);
  if (icu_name == "johab") return make_johab(*make_page("windows-949"));
  return make_page(icu_name.empty() ? "windows-1252" : icu_name);
}

}  // namespace dxf
