#include "od/cm/OdCmEntityColor.h"

#include "od/cm/palette.h"

OdCmEntityColor OdCmEntityColor::fromIndex(int index) {
  if (index == kACIbyBlock) return OdCmEntityColor(kByBlock);
  if (index < 1 || index > 255) return OdCmEntityColor(kByLayer);
  return withIndex(index);
}

OdCmEntityColor OdCmEntityColor::withIndex(int index) {
  OdCmEntityColor color(kByACI);
  color.m_value = static_cast<std::uint32_t>(index);
  return color;
}

OdCmEntityColor OdCmEntityColor::fromRaw(std::uint32_t raw) {
  auto method = static_cast<ColorMethod>(raw >> 24);
  const int index = static_cast<int>(raw & 0xFFFF);
  switch (method) {
    case kByACI:
      return index == kACInone ? withIndex(index) : fromIndex(index);
    case kByColor:
      return {static_cast<std::uint8_t>(raw >> 16), static_cast<std::uint8_t>(raw >> 8),
              static_cast<std::uint8_t>(raw)};
    case kByBlock:
    case kForeground:
    case kNone:
      return OdCmEntityColor(method);
    default:
      return OdCmEntityColor(kByLayer);
  }
}

void OdCmEntityColor::setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  m_method = kByColor;
  m_value = static_cast<std::uint32_t>(red << 16 | green << 8 | blue);
}

int OdCmEntityColor::colorIndex() const {
  switch (m_method) {
    case kByACI:
      return static_cast<int>(m_value);
    case kByColor:
      return odNearestPaletteIndex(m_value);
    case kByBlock:
      return kACIbyBlock;
    case kForeground:
      return kACIForeground;
    default:
      return kACIbyLayer;
  }
}

std::uint32_t OdCmEntityColor::trueColor() const {
  return m_method == kByColor ? m_value : odPaletteColor(static_cast<int>(m_value));
}
