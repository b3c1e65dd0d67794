#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

/// A compiled shape file: its head and the instruction bytes of each shape. Records that are damaged are left
/// out; the rest stays usable.
class ShxFile {
 public:
  enum Kind { kShapes, kUnifont, kBigfont, kExtendedBigfont };

  /// Throws `OdError(eInvalidFile)` with a sentence that begins with `name` when the bytes are no such file.
  static ShxFile parse(std::string bytes, const std::string& name);

  Kind kind() const { return m_kind; }
  bool isBigfont() const { return m_kind == kBigfont || m_kind == kExtendedBigfont; }
  /// False for a file of symbols, which has no font head.
  bool isTextFont() const { return m_hasHead; }

  /// Height of a capital in font units; of an extended big font the character height. May be 0.
  int above() const { return m_above; }
  /// Depth of the descenders.
  int below() const { return m_below; }
  bool hasVerticalMode() const { return m_modes & 2; }
  /// Width of the box that the parts of an extended big font are designed in.
  int characterWidth() const { return m_width; }

  /// The instructions of a shape, the last 0 included; an empty view where there is none.
  std::string_view shape(unsigned number) const;
  bool hasShape(unsigned number) const { return m_shapes.contains(number); }
  /// All shape numbers, ascending.
  std::vector<unsigned> numbers() const;
  /// The first bytes of two-byte characters lie in these ranges, ends included.
  const std::vector<std::pair<unsigned, unsigned>>& leadRanges() const { return m_leadRanges; }
  bool isLeadByte(unsigned byte) const;

 private:
  class Reader;
  struct Place {
    std::size_t offset, length;
  };

  void readShapes(Reader& reader);
  void readUnifont(Reader& reader);
  void readBigfont(Reader& reader);
  void addRecord(unsigned number, std::size_t offset, std::size_t length);
  void readHead(std::string_view bytes);

  std::string m_bytes;
  Kind m_kind = kShapes;
  bool m_hasHead = false;
  int m_above = 0, m_below = 0, m_modes = 0, m_width = 0;
  std::vector<std::pair<unsigned, unsigned>> m_leadRanges;
  std::unordered_map<unsigned, Place> m_shapes;
};
