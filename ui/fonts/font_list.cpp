#include "ui/fonts/font_list.h"

#include "od/fonts/OdFontLibrary.h"

namespace fonts {

std::vector<font_row> font_rows(const OdFontLibrary& library) {
  std::vector<font_row> rows;
  for (const std::u16string& file : library.shapeFonts())
    rows.push_back({.name = file, .word = controls::kShapeFontWord});
  for (const OdInstalledTypeface& each : library.installedTypefaces())
    rows.push_back(
        {.name = each.name,
         .word = controls::typeface_word(each.fixedPitch, static_cast<std::uint8_t>(each.charset))});
  return rows;
}

font_row row_of(const mtext::format::string_partial& format, const OdFontLibrary& library) {
  const std::u16string& name = format.font.value();
  if (format.is_shx)
    return {.name = name, .word = controls::kShapeFontWord, .installed = library.hasShapeFont(name)};
  const bool fixed_pitch = format.pitch.value_or(0) & 1U;
  const auto charset = static_cast<std::uint8_t>(format.charset.value_or(0));
  return {.name = name,
          .word = controls::typeface_word(fixed_pitch, charset),
          .installed = library.hasTypeface(name)};
}

mtext::format::string_partial format_of(const font_row& row) {
  mtext::format::string_partial format;
  format.font = row.name;
  format.is_shx = controls::is_shape_font(row.word);
  format.pitch = controls::pitch_of(row.word);
  format.charset = controls::charset_of(row.word);
  return format;
}

}  // namespace fonts
