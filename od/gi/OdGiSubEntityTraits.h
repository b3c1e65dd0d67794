#pragma once

#include <cstdint>
#include <optional>

#include "od/base/OdString.h"
#include "od/cm/OdCmEntityColor.h"

/// Whether closed shapes (polygons, circles) are filled or drawn by their edge.
enum OdGiFillType { kOdGiFillAlways = 1, kOdGiFillNever = 2 };

/// How much shines through a drawn shape, as one word: the method in the top byte (0 by layer, 1 by block,
/// 2 a value of its own), the alpha in the lowest, 0 clear to 255 opaque. Alpha 120 is 0x2000078.
class OdGiTransparency {
 public:
  /// By layer.
  OdGiTransparency() = default;
  explicit OdGiTransparency(std::uint32_t word) : m_word(word) {}
  /// A value of its own.
  static OdGiTransparency fromAlpha(std::uint8_t alpha) { return OdGiTransparency(0x2000000u | alpha); }

  std::uint32_t word() const { return m_word; }
  bool isByAlpha() const { return m_word >> 24 == 2; }
  /// Opaque (255) where the value is taken from elsewhere.
  std::uint8_t alpha() const { return isByAlpha() ? static_cast<std::uint8_t>(m_word) : 255; }

  friend bool operator==(const OdGiTransparency&, const OdGiTransparency&) = default;

 private:
  std::uint32_t m_word = 0;
};

/// What a primitive looks like, apart from its shape. A value: copy it to save the traits in force, assign it
/// back to restore them.
///
/// Inside a block the traits know those of the block reference: a colour, line type or line weight that is
/// set "by block" becomes that of the reference at once, and layer "0" becomes the reference's layer. What
/// the getters give is therefore never "by block" inside a block.
class OdGiSubEntityTraits {
 public:
  static constexpr int kLineWeightByLayer = -1;
  static constexpr int kLineWeightByBlock = -2;
  static constexpr int kLineWeightDefault = -3;

  /// Colour by layer, layer "0", line type and weight by layer, fill never.
  OdGiSubEntityTraits() = default;
  /// The traits with which an entity inside a block begins; `reference` are those of the block reference.
  static OdGiSubEntityTraits insideBlock(const OdGiSubEntityTraits& reference);

  /// Palette index; 0 by block, 256 by layer.
  void setColor(int index) { setTrueColor(OdCmEntityColor::fromIndex(index)); }
  /// A colour of any method, palette index included.
  void setTrueColor(const OdCmEntityColor& color);
  void setLayer(const OdString& name);
  void setFillType(OdGiFillType type) { m_fillType = type; }
  void setTransparency(OdGiTransparency value) { m_transparency = value; }
  /// Name of the line type; "ByLayer" and "ByBlock" as drawings write them.
  void setLineType(const OdString& name);
  /// Hundredths of a millimetre, or one of the negative constants.
  void setLineWeight(int weight);

  /// Palette index of the colour; of a true colour the nearest one.
  int color() const { return m_color.colorIndex(); }
  const OdCmEntityColor& trueColor() const { return m_color; }
  const OdString& layer() const { return m_layer; }
  OdGiFillType fillType() const { return m_fillType; }
  OdGiTransparency transparency() const { return m_transparency; }
  const OdString& lineType() const { return m_lineType; }
  int lineWeight() const { return m_lineWeight; }

  friend bool operator==(const OdGiSubEntityTraits&, const OdGiSubEntityTraits&) = default;

 private:
  /// What "by block" stands for.
  struct BlockValues {
    OdCmEntityColor color{};
    OdString layer{};
    OdString lineType{};
    int lineWeight = kLineWeightByLayer;
    friend bool operator==(const BlockValues&, const BlockValues&) = default;
  };

  OdCmEntityColor m_color;
  OdString m_layer = u"0";
  OdGiFillType m_fillType = kOdGiFillNever;
  OdGiTransparency m_transparency;
  OdString m_lineType = u"ByLayer";
  int m_lineWeight = kLineWeightByLayer;
  std::optional<BlockValues> m_block;
};

/// The traits that a drawable as a whole asks for.
using OdGiDrawableTraits = OdGiSubEntityTraits;
