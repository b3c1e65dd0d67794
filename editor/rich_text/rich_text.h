#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Formatted text from elsewhere.
namespace rich {

/// More characters than this are not read.
constexpr std::size_t kMostUnits = std::size_t{8} << 20;
/// What nests deeper is left out.
constexpr std::size_t kMostDepth = 500;

/// Where characters stand, seen from the line.
enum class script { none, upper, lower };

/// The format of characters, as far as codes can hold it.
struct style {
  bool bold = false;
  bool italic = false;
  bool underline = false;
  std::optional<std::uint32_t> color;  ///< 0xRRGGBB; none: that of the text around
  double size = 0;                     ///< in points; 0: unknown
  rich::script script = script::none;
  friend bool operator==(const style&, const style&) = default;
};

/// Characters of one style. A line feed is a line break within the paragraph.
struct run {
  std::u16string text;
  rich::style style;
};

/// A paragraph. `label` is what stands in front of a list item, without the tab behind it.
struct paragraph {
  std::vector<run> runs;
  std::u16string label;
};

/// Paragraphs in their order.
struct text {
  std::vector<paragraph> paragraphs;

  /// Adds characters to the last paragraph, which is made if there is none.
  void add(std::u16string_view characters, const rich::style& style);
  /// Begins another paragraph, unless the last one is empty.
  void begin_paragraph();
  /// Whether there are characters at all.
  bool empty() const;
};

/// The size that most characters have; 0 where none is known. Other sizes are ratios of it.
double usual_size(const text& source);

}  // namespace rich
