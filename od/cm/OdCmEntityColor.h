#pragma once

#include <cstdint>

/// The colour of an entity: taken from elsewhere, a palette index, or a true colour.
class OdCmEntityColor {
 public:
  /// How the colour is given; the numbers are those of raw colour values in files.
  enum ColorMethod : std::uint8_t {
    kByLayer = 0xC0,
    kByBlock = 0xC1,
    kByColor = 0xC2,  ///< red, green, blue
    kByACI = 0xC3,    ///< palette index 1 to 255
    kForeground = 0xC5,
    kNone = 0xC8  ///< the background of the window
  };

  static constexpr int kACIbyBlock = 0;
  static constexpr int kACIForeground = 7;
  static constexpr int kACIbyLayer = 256;
  static constexpr int kACInone = 257;  ///< as a raw value alone

  /// By layer.
  OdCmEntityColor() = default;
  explicit OdCmEntityColor(ColorMethod method) : m_method(method) {}
  OdCmEntityColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue) { setRGB(red, green, blue); }
  /// From an index: 0 by block, 256 by layer, else of the palette.
  static OdCmEntityColor fromIndex(int index);
  /// From a raw value as it stands in files: method in the top byte, then red, green, blue or the index.
  static OdCmEntityColor fromRaw(std::uint32_t raw);

  ColorMethod colorMethod() const { return m_method; }
  bool isByLayer() const { return m_method == kByLayer; }
  bool isByBlock() const { return m_method == kByBlock; }
  bool isByColor() const { return m_method == kByColor; }
  bool isByACI() const { return m_method == kByACI; }

  void setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
  void setColorIndex(int index) { *this = fromIndex(index); }

  std::uint8_t red() const { return static_cast<std::uint8_t>(m_value >> 16); }
  std::uint8_t green() const { return static_cast<std::uint8_t>(m_value >> 8); }
  std::uint8_t blue() const { return static_cast<std::uint8_t>(m_value); }
  /// Palette index; for a true colour the nearest one; 0 by block, 256 by layer.
  int colorIndex() const;
  /// The colour as 0xRRGGBB: of the palette for an index, white where it is taken from elsewhere.
  std::uint32_t trueColor() const;
  /// The value as files write it.
  std::uint32_t raw() const { return static_cast<std::uint32_t>(m_method) << 24 | m_value; }

  friend bool operator==(const OdCmEntityColor&, const OdCmEntityColor&) = default;

 private:
  static OdCmEntityColor withIndex(int index);

  ColorMethod m_method = kByLayer;
  std::uint32_t m_value = 0;  ///< 0xRRGGBB or the index
};
