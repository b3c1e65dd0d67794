#include "od/fonts/TypefaceIndex.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <tuple>

#include "od/base/unicode.h"
#include "od/fonts/charset_of_typeface.h"
#include "od/fonts/font_file.h"

struct TypefaceIndex::Face {
  OdTypefaceFile file{};
  int weight = FC_WEIGHT_REGULAR, slant = FC_SLANT_ROMAN, width = FC_WIDTH_NORMAL;
  int formatRank = 0;  ///< TrueType first: several formats of one face differ in their metrics
  const FcPattern* pattern = nullptr;
  const FcCharSet* characters = nullptr;

  bool isBold() const { return weight >= FC_WEIGHT_DEMIBOLD; }
  bool isItalic() const { return slant != FC_SLANT_ROMAN; }
  auto order() const { return std::tie(formatRank, file); }
};

struct TypefaceIndex::Lists {
  FcConfig* config = nullptr;
  FcFontSet* fonts = nullptr;
  ~Lists() {
    if (fonts) FcFontSetDestroy(fonts);
    if (config) FcConfigDestroy(config);
  }
};

namespace {

const FcChar8* asFc(const std::string& text) { return reinterpret_cast<const FcChar8*>(text.c_str()); }

std::string textAt(const FcPattern* pattern, const char* object, int n) {
  FcChar8* text = nullptr;
  if (FcPatternGetString(pattern, object, n, &text) != FcResultMatch) return {};
  return reinterpret_cast<const char*>(text);
}

int integerAt(const FcPattern* pattern, const char* object, int otherwise) {
  int value = otherwise;
  return FcPatternGetInteger(pattern, object, 0, &value) == FcResultMatch ? value : otherwise;
}

bool truthAt(const FcPattern* pattern, const char* object) {
  FcBool value = FcFalse;
  return FcPatternGetBool(pattern, object, 0, &value) == FcResultMatch && value == FcTrue;
}

int formatRank(const std::string& format) {
  if (format == "TrueType") return 0;
  return format == "CFF" ? 1 : 2;
}

std::u16string nameKey(std::u16string_view name) { return odLowerAscii(name); }

}  // namespace

TypefaceIndex::TypefaceIndex(const std::vector<std::string>& extraFolders) : m_lists(new Lists) {
  m_lists->config = FcInitLoadConfigAndFonts();
  if (!m_lists->config) return;
  for (const std::string& folder : extraFolders) FcConfigAppFontAddDir(m_lists->config, asFc(folder));
  readFaces();
}

TypefaceIndex::~TypefaceIndex() = default;

void TypefaceIndex::readFaces() {
  FcPattern* scalable = FcPatternBuild(nullptr, FC_SCALABLE, FcTypeBool, FcTrue, nullptr);
  FcObjectSet* objects =
      FcObjectSetBuild(FC_FILE, FC_INDEX, FC_FAMILY, FC_FULLNAME, FC_WEIGHT, FC_SLANT, FC_WIDTH,
                       FC_FONTFORMAT, FC_VARIABLE, FC_CHARSET, FC_SPACING, FC_SYMBOL, nullptr);
  m_lists->fonts = FcFontList(m_lists->config, scalable, objects);
  FcObjectSetDestroy(objects);
  FcPatternDestroy(scalable);
  for (int i = 0; m_lists->fonts && i < m_lists->fonts->nfont; ++i) {
    FcPattern* pattern = m_lists->fonts->fonts[i];
    Face face;
    face.pattern = pattern;
    face.file.path = textAt(pattern, FC_FILE, 0);
    face.file.index = integerAt(pattern, FC_INDEX, 0);
    face.weight = integerAt(pattern, FC_WEIGHT, FC_WEIGHT_REGULAR);
    face.slant = integerAt(pattern, FC_SLANT, FC_SLANT_ROMAN);
    face.width = integerAt(pattern, FC_WIDTH, FC_WIDTH_NORMAL);
    face.formatRank = formatRank(textAt(pattern, FC_FONTFORMAT, 0));
    FcCharSet* characters = nullptr;
    if (FcPatternGetCharSet(pattern, FC_CHARSET, 0, &characters) == FcResultMatch)
      face.characters = characters;
    m_faces.push_back(face);
  }
  std::ranges::sort(m_faces, [](const Face& a, const Face& b) { return a.order() < b.order(); });
  for (std::size_t i = 0; i < m_faces.size(); ++i) addNames(m_faces[i], i);
}

void TypefaceIndex::addNames(const Face& face, std::size_t at) {
  for (const char* object : {FC_FAMILY, FC_FULLNAME}) {
    for (int n = 0;; ++n) {
      std::string name = textAt(face.pattern, object, n);
      if (name.empty()) break;
      auto& places = m_byName[nameKey(odToUtf16(name))];
      if (places.empty() || places.back() != at) places.push_back(at);
    }
  }
}

const TypefaceIndex::Face* TypefaceIndex::best(const std::vector<std::size_t>& among, bool bold,
                                               bool italic) const {
  auto rank = [&](const Face& face) {
    int wanted = bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR;
    return std::tuple(std::abs(face.width - FC_WIDTH_NORMAL), face.isItalic() != italic,
                      face.isBold() != bold, std::abs(face.weight - wanted));
  };
  const Face* found = nullptr;
  for (std::size_t at : among) {
    if (!found || rank(m_faces[at]) < rank(*found)) found = &m_faces[at];
  }
  return found;
}

std::optional<OdTypefaceFile> TypefaceIndex::findFamily(std::u16string_view name, bool bold,
                                                        bool italic) const {
  auto places = m_byName.find(nameKey(name));
  if (places == m_byName.end()) return std::nullopt;
  const Face* face = best(places->second, bold, italic);
  OdTypefaceFile file = face->file;
  file.embolden = bold && !face->isBold();
  file.slant = italic && !face->isItalic();
  return file;
}

std::optional<OdTypefaceFile> TypefaceIndex::findFile(std::u16string_view fileName) const {
  std::u16string wanted = odLowerAscii(odFileNameOf(fileName));
  for (const Face& face : m_faces) {
    if (odLowerAscii(odToUtf16(odFileNameOf(face.file.path))) == wanted) return face.file;
  }
  return std::nullopt;
}

std::optional<OdTypefaceFile> TypefaceIndex::findCharacter(char32_t character) const {
  std::vector<std::size_t> having;
  for (std::size_t i = 0; i < m_faces.size(); ++i) {
    const FcCharSet* characters = m_faces[i].characters;
    if (characters && FcCharSetHasChar(characters, character)) having.push_back(i);
  }
  if (having.empty()) return std::nullopt;
  return best(having, false, false)->file;
}

std::vector<OdInstalledTypeface> TypefaceIndex::families() const {
  std::map<std::u16string, OdInstalledTypeface> byKey;
  for (const Face& face : m_faces) {
    const std::u16string name = odToUtf16(textAt(face.pattern, FC_FAMILY, 0));
    if (name.empty()) continue;
    byKey.try_emplace(nameKey(name),
                      OdInstalledTypeface{
                          .name = name,
                          .fixedPitch = integerAt(face.pattern, FC_SPACING, FC_PROPORTIONAL) >= FC_MONO,
                          .charset = odCharsetOfTypeface(face.characters, truthAt(face.pattern, FC_SYMBOL))});
  }
  std::vector<OdInstalledTypeface> result;
  for (auto& [key, family] : byKey) result.push_back(std::move(family));
  return result;
}

std::optional<OdTypefaceFile> TypefaceIndex::findAny() const {
  return m_faces.empty() ? std::nullopt : std::optional(m_faces.front().file);
}
