#include "od/fonts/OdFontLibrary.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "od/base/OdError.h"
#include "od/base/unicode.h"
#include "od/fonts/OdFont.h"
#include "od/fonts/glyph_geometry.h"
#include "tests/od/fonts/font_folder.h"
#include "tests/od/fonts/glyph_text.h"
#include "tests/od/fonts/shp_compiler.h"

namespace {

/// What a library substituted, a line each: "Arial: Liberation Sans", for characters "name U+4E2D: other".
std::string substituted(const OdFontLibrary& library) {
  std::string result;
  for (const OdFontSubstitution& each : library.substitutions()) {
    char code[16] = "";
    if (each.character) std::snprintf(code, sizeof code, " U+%04X", static_cast<unsigned>(each.character));
    result += odToUtf8(each.wanted) + code + ": " + odToUtf8(each.used) + "\n";
  }
  return result;
}

const std::string kPlainShx = compileShp("*0,4,a\n6,2,0,0\n*65,4,a\n064,2,030,0\n*63,3,a\n010,0\n");

}  // namespace

TEST(OdFontLibrary, finds_an_installed_typeface_by_name_without_case) {
  OdFontLibrary library;
  EXPECT_EQ(library.find({.typeface = u"liberation SERIF"})->name(), u"Liberation Serif");
  EXPECT_EQ(substituted(library), "");
}

TEST(OdFontLibrary, takes_the_family_s_own_bold_and_italic_faces) {
  OdFontLibrary library;
  auto advance = [&](bool bold, bool italic) {
    auto font = library.find({.typeface = u"Liberation Serif", .bold = bold, .italic = italic});
    return font->glyph(U'a')->advance.x;
  };
  EXPECT_EQ(advance(false, false), 909);
  EXPECT_EQ(advance(true, false), 1024);
  EXPECT_EQ(advance(false, true), 1024);
  EXPECT_EQ(advance(true, true), 1024);
}

TEST(OdFontLibrary, takes_the_well_known_typefaces_through_a_table_and_says_so) {
  OdFontLibrary library;
  EXPECT_EQ(library.find({.typeface = u"Arial"})->name(), u"Liberation Sans");
  EXPECT_EQ(library.find({.typeface = u"times new roman"})->name(), u"Liberation Serif");
  EXPECT_EQ(library.find({.typeface = u"Courier New"})->name(), u"Liberation Mono");
  EXPECT_EQ(substituted(library),
            "Arial: Liberation Sans\ntimes new roman: Liberation Serif\nCourier New: Liberation Mono\n");
}

TEST(OdFontLibrary, takes_liberation_sans_for_an_unknown_typeface) {
  OdFontLibrary library;
  EXPECT_EQ(library.find({.typeface = u"No Such Face"})->name(), u"Liberation Sans");
  EXPECT_EQ(substituted(library), "No Such Face: Liberation Sans\n");
}

TEST(OdFontLibrary, notes_a_substitution_once) {
  OdFontLibrary library;
  library.find({.typeface = u"Arial"});
  library.find({.typeface = u"ARIAL", .bold = true});
  EXPECT_EQ(library.substitutions().size(), 1u);
}

TEST(OdFontLibrary, finds_a_typeface_by_the_name_of_its_file) {
  OdFontLibrary library;
  EXPECT_EQ(library.find({.file = u"LiberationMono-Regular.TTF"})->name(), u"Liberation Mono");
  auto bold = library.find({.file = u"C:\\WINDOWS\\Fonts\\arialbd.ttf"});
  EXPECT_EQ(bold->name(), u"Liberation Sans");
  EXPECT_EQ(bold->glyph(U'a')->advance.x, 1139);
  EXPECT_EQ(odGlyphBox(*bold->glyph(U'H')).left, 137) << "the bold face";
}

TEST(OdFontLibrary, gives_equal_requests_the_same_font) {
  OdFontLibrary library;
  EXPECT_EQ(library.find({.typeface = u"Arial"}), library.find({.typeface = u"Arial"}));
  EXPECT_EQ(library.find({.file = u"txt"}), library.find({.file = u"txt", .bold = true}))
      << "shape fonts have no bold face";
}

TEST(OdFontLibrary, finds_shape_fonts_without_case_path_and_extension) {
  FontFolder folder;
  folder.write("Plain.SHX", kPlainShx);
  OdFontLibrary library({.searchPaths = {folder.path()}});

  auto font = library.find({.file = u"D:\\drawings\\PLAIN"});

  EXPECT_EQ(font->name(), u"Plain.SHX");
  EXPECT_TRUE(font->isShapeFont());
  EXPECT_EQ(glyphText(*font->glyph(U'A')), "0,0 0,6 > 3,0");
  EXPECT_EQ(font, library.find({.file = u"D:\\drawings\\PLAIN"}));
  EXPECT_EQ(substituted(library), "");
}

TEST(OdFontLibrary, finds_fonts_in_a_folder_that_is_added_later) {
  FontFolder folder;
  folder.write("plain.shx", kPlainShx);
  OdFontLibrary library;
  library.addSearchPath(folder.path());
  EXPECT_EQ(library.find({.file = u"plain.shx"})->name(), u"plain.shx");
}

TEST(OdFontLibrary, takes_a_stroke_font_for_a_missing_shape_font) {
  OdFontLibrary library;
  EXPECT_EQ(library.find({.file = u"romans"})->name(), u"romans.lff");
  EXPECT_EQ(library.find({.file = u"ISOCP.shx"})->name(), u"iso.lff");
  EXPECT_EQ(library.find({.file = u"unheard-of.shx"})->name(), u"simplex.lff");
  EXPECT_EQ(substituted(library), "romans: romans.lff\nISOCP.shx: iso.lff\nunheard-of.shx: simplex.lff\n");
}

TEST(OdFontLibrary, takes_the_hershey_fonts_where_the_others_are_not_installed) {
  OdFontLibrary library({.searchPaths = {}, .strokeFontPaths = {"/usr/share/hershey-fonts"}});
  EXPECT_EQ(library.find({.file = u"romans.shx"})->name(), u"rowmans.jhf");
}

TEST(OdFontLibrary, takes_a_typeface_for_a_shape_font_where_no_stroke_font_is_installed) {
  OdFontLibrary library({.searchPaths = {}, .strokeFontPaths = {}});
  EXPECT_EQ(library.find({.file = u"romans.shx"})->name(), u"Liberation Sans");
}

TEST(OdFontLibrary, tells_why_a_shape_font_that_is_there_is_not_used) {
  FontFolder folder;
  folder.write("romans.shx", "garbage");
  OdFontLibrary library({.searchPaths = {folder.path()}});

  EXPECT_EQ(library.find({.file = u"romans.shx"})->name(), u"romans.lff");

  ASSERT_EQ(library.substitutions().size(), 1u);
  EXPECT_EQ(library.substitutions()[0].reason, "romans.shx is not a compiled shape file");
}

TEST(OdFontLibrary, a_style_without_any_name_draws_with_the_standard_shape_font) {
  EXPECT_EQ(OdFontLibrary().find({})->name(), u"standard.lff");
}

TEST(OdFontLibrary, brings_a_missing_character_to_the_size_of_the_font_that_lacks_it) {
  OdFontLibrary library;
  auto sans = library.find({.typeface = u"Liberation Sans"});
  auto dejavu = library.find({.typeface = u"DejaVu Sans"});

  double factor = sans->nominalHeight() / dejavu->nominalHeight();
  EXPECT_DOUBLE_EQ(sans->glyph(U'☀')->advance.x, dejavu->glyph(U'☀')->advance.x * factor);

  EXPECT_EQ(substituted(library), "Liberation Sans U+2600: DejaVu Sans\n");
}

TEST(OdFontLibrary, takes_strokes_for_a_character_that_a_stroke_font_lacks) {
  OdFontLibrary library;
  auto font = library.find({.file = u"romans.lff"});
  EXPECT_FALSE(font->glyph(U'Ж')->filled);
  EXPECT_EQ(substituted(library), "romans.lff U+0416: unicode.lff\n");
}

TEST(OdFontLibrary, a_character_beyond_sixteen_bits_is_one_glyph) {
  OdFontLibrary library;
  EXPECT_TRUE(library.find({.typeface = u"Arial"})->glyph(U'😀')->filled);
}

TEST(OdFontLibrary, shows_the_font_s_sign_for_a_character_that_nothing_has) {
  FontFolder folder;
  folder.write("plain.shx", kPlainShx);
  OdFontLibrary library({.searchPaths = {folder.path()}});
  auto font = library.find({.file = u"plain"});
  constexpr char32_t kNobodyHas = 0x10FFFD;
  EXPECT_EQ(glyphText(*font->glyph(kNobodyHas)), "0,0 1,0 > 1,0") << "the question mark";
  EXPECT_EQ(substituted(library), "plain.shx U+10FFFD: \n");
}

TEST(OdFontLibrary, characters_that_only_steer_have_no_glyph_and_are_not_missed) {
  OdFontLibrary library;
  auto font = library.find({.typeface = u"Liberation Sans"});
  for (char32_t c : {U'\n', U'\t', U'\u200B', U'\uFEFF'}) EXPECT_EQ(font->glyph(c), nullptr);
  EXPECT_EQ(substituted(library), "");
}

TEST(OdFontLibrary, a_space_that_does_not_break_is_a_space) {
  OdFontLibrary library;
  auto font = library.find({.file = u"romans.lff"});
  EXPECT_EQ(font->glyph(U'\u00A0'), font->glyph(U' '));
}

TEST(OdFontLibrary, a_big_font_draws_the_characters_of_two_bytes) {
  FontFolder folder;
  folder.write("plain.shx", kPlainShx);
  folder.write("gbcbig.shx", compileShp("*BIGFONT 2,1,0A1,0FE\n*0,4,a\n12,0,2,0\n*0B9FA,4,a\n0C4,2,080,0\n"));
  OdFontLibrary library({.searchPaths = {folder.path()}});

  auto font = library.find({.file = u"plain", .bigFontFile = u"GBCBIG"});

  EXPECT_EQ(glyphText(*font->glyph(U'A')), "0,0 0,6 > 3,0");
  EXPECT_EQ(glyphText(*font->glyph(U'国')), "0,0 0,6 > 4,0")
      << "12 units high in its own font, 6 in the primary";
  EXPECT_EQ(substituted(library), "");
}

TEST(OdFontLibrary, a_big_font_may_follow_the_file_name_behind_a_comma) {
  OdFontLibrary library;
  EXPECT_EQ(library.find({.file = u"romans.lff,extfont2.shx"}),
            library.find({.file = u"romans.lff", .bigFontFile = u"extfont2.shx"}));
}

TEST(OdFontLibrary, a_missing_big_font_is_noted_and_its_characters_are_found_elsewhere) {
  OdFontLibrary library;
  auto font = library.find({.file = u"romans.lff", .bigFontFile = u"extfont2.shx"});
  EXPECT_FALSE(font->glyph(U'亜')->contours.empty());
  EXPECT_EQ(substituted(library), "extfont2.shx: kst32b.lff\n");
}

TEST(OdFontLibrary, a_substitute_hangs_where_the_font_runs_downwards) {
  FontFolder folder;
  folder.write("down.shx", compileShp("*0,4,a\n6,2,2,0\n*10,4,lf\n2,8,(0,-10),0\n*65,2,a\n010,0\n"));
  OdFontLibrary library({.searchPaths = {folder.path()}});
  auto font = library.find({.file = u"down"});

  const OdFontGlyph* level = font->glyph(U'Ж', false);
  OdGlyphBox levelBox = odGlyphBox(*level);
  const OdFontGlyph* hanging = font->glyph(U'Ж', true);
  OdGlyphBox hangingBox = odGlyphBox(*hanging);

  EXPECT_EQ(hanging->advance, (OdGeVector2d{0, -10}));
  EXPECT_DOUBLE_EQ(hangingBox.top, levelBox.top - 6);
  EXPECT_DOUBLE_EQ(hangingBox.left, levelBox.left - level->advance.x / 2);
}

TEST(OdFontLibrary, fonts_outlive_their_library) {
  std::shared_ptr<const OdFont> font;
  {
    OdFontLibrary library;
    font = library.find({.typeface = u"Liberation Sans"});
  }
  EXPECT_EQ(font->glyph(U'O')->advance.x, 1593);
  EXPECT_TRUE(font->glyph(U'☀')->filled) << "even for characters that it has to look for";
}

TEST(OdFontLibrary, lists_every_installed_typeface_once_by_name) {
  const auto typefaces = OdFontLibrary().installedTypefaces();
  const auto named = [&](std::u16string_view name) {
    return std::ranges::count(typefaces, name, &OdInstalledTypeface::name);
  };
  EXPECT_EQ(named(u"Liberation Serif"), 1);
  EXPECT_EQ(named(u"DejaVu Sans Mono"), 1);
  EXPECT_TRUE(
      std::ranges::is_sorted(typefaces, {}, [](const auto& each) { return odLowerAscii(each.name); }));
}

TEST(OdFontLibrary, tells_pitch_and_character_set_of_a_typeface) {
  const auto typefaces = OdFontLibrary().installedTypefaces();
  const auto of = [&](std::u16string_view name) {
    return *std::ranges::find(typefaces, name, &OdInstalledTypeface::name);
  };
  EXPECT_EQ(of(u"Liberation Mono"), (OdInstalledTypeface{u"Liberation Mono", true, 0}));
  EXPECT_EQ(of(u"Liberation Sans"), (OdInstalledTypeface{u"Liberation Sans", false, 0}));
}

TEST(OdFontLibrary, lists_the_shape_fonts_of_its_folders_that_hold_letters) {
  const FontFolder first, second;
  first.write("plain.SHX", kPlainShx);
  first.write("broken.shx", "no font at all");
  first.write("notes.txt", "nothing");
  second.write("Plain.shx", kPlainShx);
  second.write("another.shx", kPlainShx);
  OdFontLibrary library;
  library.addShapeFontFolder(first.path());
  library.addShapeFontFolder(second.path());
  EXPECT_EQ(library.shapeFonts(), (std::vector<std::u16string>{u"plain.SHX", u"another.shx"}));
}

TEST(OdFontLibrary, finds_shape_fonts_in_the_folders_for_them) {
  const FontFolder folder;
  folder.write("plain.shx", kPlainShx);
  OdFontLibrary library;
  library.addShapeFontFolder(folder.path());
  EXPECT_EQ(library.find({.file = u"Plain"})->name(), u"plain.shx");
  EXPECT_EQ(substituted(library), "");
}

TEST(OdFontLibrary, knows_what_nothing_has_to_stand_in_for) {
  const FontFolder folder;
  folder.write("plain.shx", kPlainShx);
  OdFontLibrary library;
  library.addShapeFontFolder(folder.path());
  EXPECT_TRUE(library.hasTypeface(u"liberation sans"));
  EXPECT_FALSE(library.hasTypeface(u"Arial"));
  EXPECT_TRUE(library.hasShapeFont(u"plain"));
  EXPECT_FALSE(library.hasShapeFont(u"romans.shx"));
  EXPECT_FALSE(library.hasShapeFont(u"plain,nobig"));
  EXPECT_TRUE(library.hasShapeFont(u"plain.shx,plain.shx"));
}

TEST(OdFontLibrary, one_made_of_its_places_finds_the_same_fonts_and_keeps_its_own_notes) {
  const FontFolder folder;
  folder.write("plain.shx", kPlainShx);
  OdFontLibrary library;
  library.addShapeFontFolder(folder.path());
  OdFontLibrary other(library.places());
  EXPECT_EQ(other.find({.file = u"plain"})->name(), u"plain.shx");
  other.find({.typeface = u"No Such Face"});
  EXPECT_EQ(substituted(library), "");
}
