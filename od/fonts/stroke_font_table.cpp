#include "od/fonts/stroke_font_table.h"

#include <array>

#include "od/base/unicode.h"

namespace {

struct StandIn {
  std::u16string_view shapeFont;
  std::array<std::u16string_view, 3> strokeFonts;
};

constexpr StandIn kStandIns[] = {
    {u"complex", {u"romanc.lff", u"timesr.jhf"}},
    {u"cyrillic", {u"cyrillic_ii.lff", u"cyrillic.jhf"}},
    {u"cyriltlc", {u"cyrillic_ii.lff", u"cyrilc_1.jhf"}},
    {u"gothice", {u"gothgbt.lff", u"gothgbt.jhf"}},
    {u"gothicg", {u"gothgrt.lff", u"gothgrt.jhf"}},
    {u"gothici", {u"gothitt.lff", u"gothitt.jhf"}},
    {u"greekc", {u"greekc.lff", u"greekc.jhf"}},
    {u"greeks", {u"greeks.lff", u"greeks.jhf"}},
    {u"isocp", {u"iso.lff", u"iso3098.lff", u"rowmans.jhf"}},
    {u"isocp2", {u"iso.lff", u"iso3098.lff", u"rowmans.jhf"}},
    {u"isocp3", {u"iso.lff", u"iso3098.lff", u"rowmans.jhf"}},
    {u"isoct", {u"iso.lff", u"iso3098.lff", u"rowmans.jhf"}},
    {u"iso3098", {u"iso3098.lff", u"iso.lff", u"rowmans.jhf"}},
    {u"italic", {u"italicc.lff", u"timesi.jhf"}},
    {u"italicc", {u"italicc.lff", u"timesi.jhf"}},
    {u"italict", {u"italict.lff", u"timesib.jhf"}},
    {u"monotxt", {u"standard.lff", u"rowmans.jhf"}},
    {u"romanc", {u"romanc.lff", u"timesr.jhf"}},
    {u"romand", {u"romand.lff", u"rowmand.jhf"}},
    {u"romans", {u"romans.lff", u"rowmans.jhf"}},
    {u"romant", {u"romant.lff", u"rowmant.jhf"}},
    {u"scriptc", {u"scriptc.lff", u"scriptc.jhf"}},
    {u"scripts", {u"scripts.lff", u"scripts.jhf"}},
    {u"simplex", {u"simplex.lff", u"rowmans.jhf"}},
    {u"syastro", {u"syastro.lff", u"astrology.jhf"}},
    {u"symap", {u"symap.lff", u"markers.jhf"}},
    {u"symath", {u"symath.lff", u"mathlow.jhf"}},
    {u"symeteo", {u"symeteo.lff", u"meteorology.jhf"}},
    {u"symusic", {u"symusic.lff", u"music.jhf"}},
    {u"txt", {u"standard.lff", u"rowmans.jhf"}},
};

constexpr StandIn kBigfontStandIns[] = {
    {u"bigfont", {u"kst32b.lff", u"unicode.lff"}},  {u"extfont", {u"kst32b.lff", u"unicode.lff"}},
    {u"extfont2", {u"kst32b.lff", u"unicode.lff"}}, {u"@extfont2", {u"kst32b.lff", u"unicode.lff"}},
    {u"extslim", {u"kst32b.lff", u"unicode.lff"}},  {u"extslim2", {u"kst32b.lff", u"unicode.lff"}},
};

/// For all others, and behind the row of each.
constexpr std::array<std::u16string_view, 3> kPlain{u"simplex.lff", u"standard.lff", u"rowmans.jhf"};

struct CodePageRow {
  std::u16string_view bigfont;
  int codePage;
};

constexpr CodePageRow kCodePages[] = {
    {u"bigfont", 932},  {u"extfont", 932},  {u"extfont2", 932}, {u"@extfont2", 932}, {u"extslim", 932},
    {u"extslim2", 932}, {u"chineset", 950}, {u"gbcbig", 936},   {u"hztxt", 936},     {u"zjdz", 936},
    {u"whgtxt", 949},   {u"whgdtxt", 949},  {u"whtgtxt", 949},  {u"whtmtxt", 949},
};

template <typename Rows>
std::vector<std::u16string_view> lookUp(const Rows& rows, std::u16string_view stem) {
  std::vector<std::u16string_view> result;
  for (const StandIn& row : rows) {
    if (!odEqualNoCase(row.shapeFont, stem)) continue;
    for (std::u16string_view name : row.strokeFonts) {
      if (!name.empty()) result.push_back(name);
    }
  }
  return result;
}

}  // namespace

std::vector<std::u16string_view> odStrokeFontsFor(std::u16string_view stem) {
  std::vector<std::u16string_view> result = lookUp(kStandIns, stem);
  result.insert(result.end(), kPlain.begin(), kPlain.end());
  return result;
}

std::vector<std::u16string_view> odStrokeFontsForBigfont(std::u16string_view stem) {
  return lookUp(kBigfontStandIns, stem);
}

std::vector<std::u16string_view> odWideStrokeFonts() { return {u"unicode.lff", u"kst32b.lff"}; }

int odCodePageOfBigfont(std::u16string_view stem) {
  for (const CodePageRow& row : kCodePages) {
    if (odEqualNoCase(row.bigfont, stem)) return row.codePage;
  }
  return 0;
}
