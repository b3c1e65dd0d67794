#pragma once

#include <boost/logic/tribool.hpp>
#include <cstdint>
#include <optional>
#include <utility>

#include "mtext/font_name.h"
#include "mtext/text_color.h"
#include "od/base/export.h"

/// The records of all text formatting: complete formats of characters and paragraphs, and the partial records
/// that express a change, a difference or what several formats have in common.
namespace mtext::format {

/// The bits of `string::flags`.
enum string_flag : std::uint32_t { flag_bold = 1, flag_italic = 2, flag_underline = 4, flag_overline = 8 };

/// Heights, and in `merge` all other reals, that differ by less than this count as the same.
inline constexpr double tolerance = 0.0001;

/// The complete format of a run of characters. Every character of a laid-out text has one: the order of the
/// fields leaves no gaps.
struct string {
  /// Text height: in drawing units, or a factor, as `height_kind` says.
  double height = 1.0;
  /// 0: `height` is in drawing units. 1: a factor of the base text height that the layout receives.
  std::uint32_t height_kind = 1;
  /// The typeface's name, or the file name of a shape font with its ".shx".
  font_name font = {};
  /// Pitch-and-family number of the font.
  std::uint32_t pitch = 0;
  /// Bits of `string_flag`.
  std::uint32_t flags = 0;
  /// Character set number of the font.
  std::uint32_t charset = 0;
  /// Vertical alignment in the line: 0 bottom, 1 centre, 2 top.
  std::uint32_t align = 0;
  /// The font is a shape font and not a typeface.
  bool is_shx = false;
  text_color color = {};
  /// Factor of the characters' widths.
  double width_factor = 1.0;
  /// Obliquing angle in radians.
  double oblique = 0.0;
  /// Factor of the space between characters.
  double tracking = 1.0;
};

/// Heights are compared with `tolerance`, the other reals exactly: deliberately stricter than `merge`, so
/// that two records can be unequal and yet have an empty difference.
SCRIBE_EXPORT bool operator==(const string& a, const string& b);

/// A subset of the fields of `string`. A fresh one holds nothing: its optionals are empty, its three-valued
/// flags indeterminate.
struct string_partial {
  /// Value and `height_kind`.
  std::optional<std::pair<double, std::uint32_t>> height = {};
  std::optional<font_name> font = {};
  std::optional<std::uint32_t> pitch = {};
  std::optional<std::uint32_t> charset = {};
  boost::logic::tribool is_shx = boost::logic::indeterminate;
  boost::logic::tribool bold = boost::logic::indeterminate;
  boost::logic::tribool italic = boost::logic::indeterminate;
  boost::logic::tribool underline = boost::logic::indeterminate;
  boost::logic::tribool overline = boost::logic::indeterminate;
  std::optional<text_color> color = {};
  std::optional<double> width_factor = {};
  std::optional<double> oblique = {};
  std::optional<double> tracking = {};
  std::optional<std::uint32_t> align = {};
};

/// Every field of `s`, set.
SCRIBE_EXPORT string_partial to_partial(const string& s);

/// Writes every set field of `p` into `s` and returns `s`. A height overwrites, it does not multiply.
SCRIBE_EXPORT string& apply_to(string& s, const string_partial& p);
/// A copy of `s` with every set field of `p` written into it.
SCRIBE_EXPORT string applied_to(const string& s, const string_partial& p);
/// Every set field of `b` overrides that of `a`; returns `a`.
SCRIBE_EXPORT string_partial& apply_to(string_partial& a, const string_partial& b);
/// A copy of `a` with every set field of `b` overriding.
SCRIBE_EXPORT string_partial applied_to(const string_partial& a, const string_partial& b);

/// The change that leads from `a` to `b`: a field is set only where they differ by `tolerance` or more, or,
/// if it is no real, at all. The height of a change is the ratio of the two, a factor.
SCRIBE_EXPORT string_partial merge(const string& a, const string& b);

/// What `a` and `b` have in common: fields that are set and equal in both.
SCRIBE_EXPORT string_partial intersection(const string_partial& a, const string_partial& b);

/// True when `p` changes neither name, character set, pitch, weight nor slant of the font. `is_shx` does not
/// count.
SCRIBE_EXPORT bool is_default_format(const string_partial& p);

}  // namespace mtext::format
