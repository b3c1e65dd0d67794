#pragma once

#include <cstdint>
#include <memory>

#include "od/base/OdString.h"
#include "od/gi/OdGiFontContext.h"

class OdFont;

/// How a line of text is drawn: font, size and the ways to distort it. Fill it in, then `loadStyleRec` finds
/// the font; only a loaded style can draw or measure.
class OdGiTextStyle {
 public:
  /// Bits of the flag word. The lowest is what a style table's record of a shape file has set.
  enum Flags : std::uint32_t { kShapeFile = 1, kVertical = 2, kBackward = 4, kUpsideDown = 8 };
  /// Bits of the font descriptor word above charset and pitch.
  static constexpr std::uint32_t kDescriptorItalic = 0x1000000;
  static constexpr std::uint32_t kDescriptorBold = 0x2000000;

  /// Takes a typeface by name. An empty name takes the style back to its file.
  void setFont(const OdString& typeface, bool bold, bool italic, int charset, int pitchAndFamily);
  /// Takes a font file by name, a shape font or a typeface's file, and forgets the typeface.
  void setFileName(const OdString& name);
  /// The shape font for characters of two bytes; empty for none.
  void setBigFontFileName(const OdString& name);
  /// Height of a capital in drawing units.
  void setTextSize(double size) { m_textSize = size; }
  /// Width factor.
  void setXScale(double factor) { m_xScale = factor; }
  /// Slant to the right in radians.
  void setObliquingAngle(double angle) { m_obliquing = angle; }
  /// Factor of the distance from character to character, 1 as the font has it.
  void setTrackingPercent(double factor) { m_tracking = factor; }
  /// Mirrored left to right about the start point.
  void setBackward(bool on) { setFlag(kBackward, on); }
  /// Mirrored about the baseline.
  void setUpsideDown(bool on) { setFlag(kUpsideDown, on); }
  /// One character below the other; shape fonts that know the vertical mode only.
  void setVertical(bool on) { setFlag(kVertical, on); }
  void setFlags(std::uint32_t flags) { m_flags = flags; }
  /// Number of the Windows code page by which characters become numbers of old shape fonts, and `%%nnn`
  /// becomes a character; 0 as for 1252.
  void setCodePage(int codePage);
  /// The word as drawings keep it: pitch and family in the low byte, the charset in the next, then the bits
  /// of italic and bold.
  void setFontDescriptor(std::uint32_t word);

  const OdString& typeface() const { return m_typeface; }
  const OdString& fileName() const { return m_fileName; }
  const OdString& bigFontFileName() const { return m_bigFontFileName; }
  bool isBold() const { return m_descriptor & kDescriptorBold; }
  bool isItalic() const { return m_descriptor & kDescriptorItalic; }
  int charset() const { return static_cast<int>(m_descriptor >> 8 & 0xFF); }
  int pitchAndFamily() const { return static_cast<int>(m_descriptor & 0xFF); }
  std::uint32_t fontDescriptor() const { return m_descriptor; }
  double textSize() const { return m_textSize; }
  double xScale() const { return m_xScale; }
  double obliquingAngle() const { return m_obliquing; }
  double trackingPercent() const { return m_tracking; }
  bool isBackward() const { return m_flags & kBackward; }
  bool isUpsideDown() const { return m_flags & kUpsideDown; }
  bool isVertical() const { return m_flags & kVertical; }
  std::uint32_t flags() const { return m_flags; }
  int codePage() const { return m_codePage; }

  /// Finds the font by the names set so far. There is always one: what is missing is substituted, and the
  /// font library lists what stands for what.
  void loadStyleRec(const OdGiFontContext& context);
  /// The font found, which the style shares; null before `loadStyleRec` and after a name was changed.
  const OdFont* font() const { return m_font.get(); }

 private:
  void setFlag(std::uint32_t flag, bool on) { m_flags = on ? m_flags | flag : m_flags & ~flag; }

  OdString m_typeface;
  OdString m_fileName;
  OdString m_bigFontFileName;
  std::uint32_t m_descriptor = 0;
  std::uint32_t m_flags = 0;
  double m_textSize = 1;
  double m_xScale = 1;
  double m_obliquing = 0;
  double m_tracking = 1;
  int m_codePage = 0;
  std::shared_ptr<const OdFont> m_font;
};
