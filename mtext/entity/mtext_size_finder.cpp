#include "mtext/entity/mtext_size_finder.h"

#include <compare>
#include <unordered_map>

#include "mtext/entity/text_style.h"
#include "od/db/OdDbDatabase.h"
#include "od/fonts/OdFont.h"
#include "od/gi/OdGiContext.h"

namespace mtext {

namespace {

/// A number in an order that has a place for what is no number too: a text can come to such a height, and
/// as a key it would be equal to every other.
struct ordered_real {
  double value;

  friend bool operator==(ordered_real a, ordered_real b) { return (a <=> b) == 0; }
  friend std::strong_ordering operator<=>(ordered_real a, ordered_real b) {
    return std::strong_order(a.value, b.value);
  }
};

}  // namespace

/// What of a format the measures depend on.
struct mtext_size_finder::style_key {
  explicit style_key(const format::string& format)
      : height{format.height},
        width_factor{format.width_factor},
        font(format.font),
        face(face_of(format)),
        charset(format.charset),
        pitch(format.pitch),
        is_shx(format.is_shx) {}

  static std::uint32_t face_of(const format::string& format) {
    return format.flags & (format::flag_bold | format::flag_italic);
  }

  /// Whether this is the key of `format`; saves making one.
  bool is_of(const format::string& format) const {
    return height == ordered_real{format.height} && width_factor == ordered_real{format.width_factor} &&
           font == format.font && face == face_of(format) && charset == format.charset &&
           pitch == format.pitch && is_shx == format.is_shx;
  }

  ordered_real height;
  ordered_real width_factor;
  format::font_name font;
  std::uint32_t face;  ///< bold and italic
  std::uint32_t charset;
  std::uint32_t pitch;
  bool is_shx;

  friend auto operator<=>(const style_key&, const style_key&) = default;
};

struct mtext_size_finder::measured_style {
  OdGiTextStyle style;
  mtext::font_metrics font;
  std::unordered_map<char16_t, string_metrics> characters;
  std::unordered_map<std::u16string, string_metrics> texts;  ///< of any other length
};

namespace {

/// Line pitch of a shape font in heights, whatever its file says: lines of shape text stand 5/3 apart.
constexpr double kShapePitch = 1.6666666666666667;

font_metrics metrics_of(const OdFont& font, double height) {
  const double scale = height / font.nominalHeight();
  const double descender = font.isShapeFont() ? -font.descender() : font.descender();
  const double pitch = font.isShapeFont() ? font.nominalHeight() * kShapePitch : font.linePitch();
  return {.head = font.internalLeading() * scale,
          .above = font.nominalHeight() * scale,
          .below = -descender * scale,
          .gap = (pitch - (font.internalLeading() + font.nominalHeight() - descender)) * scale};
}

string_metrics look_at(const OdGiTextStyle& style, const font_metrics& font, std::u16string_view text) {
  OdGePoint3d minimum, maximum, end;
  OdGiDefaultContext().textExtentsBox(style, text.data(), static_cast<int>(text.size()), 0, minimum, maximum,
                                      end);
  return {.head = font.head,
          .above = font.above,
          .below = font.below,
          .gap = font.gap,
          .advance = end.x,
          .left_bearing = minimum.x,
          .right_bearing = end.x - maximum.x,
          .ink_top = maximum.y,
          .ink_bottom = -minimum.y};
}

}  // namespace

mtext_size_finder::mtext_size_finder(OdSmartPtr<OdDbDatabase> database) : m_database(std::move(database)) {}

mtext_size_finder::mtext_size_finder(const mtext_size_finder& other)
    : string_size_finder(other), m_database(other.m_database) {}

mtext_size_finder::~mtext_size_finder() = default;

mtext_size_finder::measured_style& mtext_size_finder::style_of(const format::string& format) const {
  if (!m_last || !m_last->first.is_of(format)) m_last = &*m_styles.try_emplace(style_key(format)).first;
  auto& entry = m_last->second;
  if (!entry) {
    OdGiTextStyle style = text_style(format, *m_database);
    const auto font = metrics_of(*style.font(), format.height);
    entry = std::make_unique<measured_style>(measured_style{std::move(style), font, {}, {}});
  }
  return *entry;
}

font_metrics mtext_size_finder::font_metrics(const format::string& format) const {
  return style_of(format).font;
}

string_metrics mtext_size_finder::measure(const format::string& format, std::u16string_view text) const {
  measured_style& known = style_of(format);
  const auto measured = [&](const auto& entry) {
    const auto [at, is_new] = entry;
    if (is_new) at->second = look_at(known.style, known.font, text);
    return at->second;
  };
  return text.size() == 1 ? measured(known.characters.try_emplace(text.front()))
                          : measured(known.texts.try_emplace(std::u16string(text)));
}

}  // namespace mtext
