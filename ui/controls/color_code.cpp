#include "ui/controls/color_code.h"

#include <string>

#include "host/translate.h"
#include "od/base/unicode.h"

namespace controls {
namespace {

constexpr color_code kKindMask = 0xFF000000;
constexpr color_code kIndexKind = 0x1000000;
constexpr color_code kTrueKind = 0x2000000;

constexpr int kColor = 1056;
constexpr int kFirstName = 1200;  ///< of index 0; those of 1 to 7 follow
constexpr int kByLayerName = 1208;
constexpr int kUnknown = 1209;

std::u16string number(std::uint32_t value) { return odToUtf16(std::to_string(value)); }

color_code true_code(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return kTrueKind | red << 16 | green << 8 | blue;
}

std::u16string index_name(color_code index) {
  constexpr color_code kNamed = 8;
  if (index < kNamed) return host::resource_string(kFirstName + static_cast<int>(index));
  if (index == OdCmEntityColor::kACIbyLayer) return host::resource_string(kByLayerName);
  return host::resource_string(kColor) + u" " + number(index);
}

}  // namespace

color_code code_of(const OdCmEntityColor& color) {
  if (color.isByColor()) return true_code(color.red(), color.green(), color.blue());
  return index_code(color.colorIndex());
}

color_code code_of(const mtext::format::text_color& color) {
  return color.kind == 0 ? index_code(color.index) : true_code(color.red, color.green, color.blue);
}

OdCmEntityColor color_of(color_code code) {
  if ((code & kKindMask) == kIndexKind)
    return OdCmEntityColor::fromIndex(static_cast<int>(code & ~kKindMask));
  if ((code & kKindMask) != kTrueKind) return {};
  const auto byte = [code](int shift) { return static_cast<std::uint8_t>(code >> shift); };
  return {byte(16), byte(8), byte(0)};
}

mtext::format::text_color text_color_of(const OdCmEntityColor& color) {
  if (!color.isByColor()) return {.kind = 0, .index = static_cast<std::uint16_t>(color.colorIndex())};
  return {.top = 0, .red = color.red(), .green = color.green(), .blue = color.blue()};
}

std::u16string name_of(color_code code) {
  if ((code & kKindMask) == kIndexKind) return index_name(code & ~kKindMask);
  if ((code & kKindMask) != kTrueKind) return host::resource_string(kUnknown);
  return number(code >> 16 & 0xFF) + u"," + number(code >> 8 & 0xFF) + u"," + number(code & 0xFF);
}

}  // namespace controls
