#include "od/fonts/OdFontLibrary.h"

#include <algorithm>
#include <map>

#include "od/base/OdError.h"
#include "od/base/unicode.h"
#include "od/fonts/FontLoader.h"
#include "od/fonts/GlyphSubstitutes.h"
#include "od/fonts/OdCharMapper.h"
#include "od/fonts/OdComposedFont.h"
#include "od/fonts/TypefaceIndex.h"
#include "od/fonts/font_file.h"
#include "od/fonts/stroke_font_table.h"
#include "od/fonts/typeface_aliases.h"

using FontPtr = std::shared_ptr<const OdFont>;

struct OdFontLibrary::State {
  explicit State(OdFontPlaces places)
      : loader(std::make_shared<FontLoader>(std::move(places))),
        substitutes(std::make_shared<GlyphSubstitutes>(loader, notes)) {}

  FontPtr compose(const OdFontRequest& request);

  FontPtr typeface(const std::u16string& name, bool bold, bool italic);
  FontPtr typefaceOfFile(const OdFontRequest& request);
  FontPtr standInTypeface(const std::u16string& name, bool bold, bool italic, const std::string& reason);
  FontPtr shapeFont(const std::u16string& name, int codePage);
  FontPtr standInShapeFont(const std::u16string& name, const std::string& reason);
  void addBigFont(const OdFontRequest& request, OdComposedFont::Parts& parts);

  FontPtr family(std::u16string_view name, bool bold, bool italic, std::string& reason);
  void note(OdFontSubstitution::Kind kind, const std::u16string& wanted, const FontPtr& used,
            const std::string& reason);

  std::shared_ptr<SubstitutionNotes> notes = std::make_shared<SubstitutionNotes>();
  std::shared_ptr<FontLoader> loader;
  std::shared_ptr<GlyphSubstitutes> substitutes;
  std::map<OdFontRequest, FontPtr> found;
};

namespace {

constexpr std::u16string_view kLastTypefaces[] = {u"Liberation Sans", u"DejaVu Sans"};

bool isTypefaceFile(const std::u16string& file) {
  std::u16string extension = odExtensionOf(file);
  for (std::u16string_view known : {u"ttf", u"ttc", u"otf", u"otc", u"pfb"}) {
    if (extension == known) return true;
  }
  return false;
}

/// Texts name a shape font and its big font in one, with a comma between.
void splitFiles(OdFontRequest& request) {
  auto comma = request.file.find(u',');
  if (comma == request.file.npos) return;
  if (request.bigFontFile.empty()) request.bigFontFile = request.file.substr(comma + 1);
  request.file.resize(comma);
}

/// The request without what changes nothing, so that equal fonts are found under one key.
OdFontRequest reduced(OdFontRequest request) {
  splitFiles(request);
  if (!request.typeface.empty()) {
    if (request.typeface.front() == u'@') request.typeface.erase(0, 1);
    request.file.clear();
  } else if (request.file.empty()) {
    request.file = u"txt";
  }
  bool isTypeface = !request.typeface.empty() || isTypefaceFile(request.file);
  if (isTypeface) {
    request.bigFontFile.clear();
    request.codePage = request.charset = 0;
  } else {
    request.bold = request.italic = false;
  }
  return request;
}

bool isDoubleByte(int codePage) {
  return codePage == 932 || codePage == 936 || codePage == 949 || codePage == 950;
}

/// The file of a big font does not tell its code page: it comes from the font's name, else from the style,
/// else it is the most frequent one.
int codePageOfBigFont(const OdFontRequest& request) {
  if (int known = odCodePageOfBigfont(odStemOf(request.bigFontFile))) return known;
  if (isDoubleByte(request.codePage)) return request.codePage;
  int ofCharset = OdCharMapper::getCodepageByCharset(static_cast<unsigned short>(request.charset));
  return isDoubleByte(ofCharset) ? ofCharset : 936;
}

}  // namespace

OdFontLibrary::OdFontLibrary(OdFontPlaces places) : m_state(new State(std::move(places))) {}
OdFontLibrary::~OdFontLibrary() = default;

void OdFontLibrary::addSearchPath(const std::string& folder) { m_state->loader->addSearchPath(folder); }

void OdFontLibrary::addShapeFontFolder(const std::string& folder) {
  m_state->loader->addShapeFontFolder(folder);
}

OdFontPlaces OdFontLibrary::places() const { return m_state->loader->places(); }

std::vector<OdInstalledTypeface> OdFontLibrary::installedTypefaces() const {
  return m_state->loader->typefaces().families();
}

std::vector<std::u16string> OdFontLibrary::shapeFonts() const { return m_state->loader->shapeFontFiles(); }

bool OdFontLibrary::hasTypeface(std::u16string_view name) const {
  return m_state->loader->typefaces().findFamily(name, false, false).has_value();
}

bool OdFontLibrary::hasShapeFont(std::u16string_view name) const {
  const std::size_t comma = std::min(name.find(u','), name.size());
  if (!m_state->loader->findShapeFile(name.substr(0, comma))) return false;
  return comma == name.size() || m_state->loader->findShapeFile(name.substr(comma + 1));
}

const std::vector<OdFontSubstitution>& OdFontLibrary::substitutions() const { return m_state->notes->all(); }

std::shared_ptr<const OdFont> OdFontLibrary::find(const OdFontRequest& request) {
  OdFontRequest key = reduced(request);
  FontPtr& known = m_state->found[key];
  if (!known) known = m_state->compose(key);
  return known;
}

FontPtr OdFontLibrary::State::compose(const OdFontRequest& request) {
  OdComposedFont::Parts parts;
  if (!request.typeface.empty()) {
    parts.primary = typeface(request.typeface, request.bold, request.italic);
  } else if (isTypefaceFile(request.file)) {
    parts.primary = typefaceOfFile(request);
  } else {
    parts.primary = shapeFont(request.file, request.codePage);
  }
  if (!request.bigFontFile.empty()) addBigFont(request, parts);
  parts.substitutes = substitutes;
  parts.bold = request.bold;
  parts.italic = request.italic;
  return std::make_shared<OdComposedFont>(std::move(parts));
}

/// An installed family, or null; why a file that is there cannot be used goes into `reason`.
FontPtr OdFontLibrary::State::family(std::u16string_view name, bool bold, bool italic, std::string& reason) {
  auto file = loader->typefaces().findFamily(name, bold, italic);
  if (!file) return nullptr;
  try {
    return loader->typeface(*file);
  } catch (const OdError& error) {
    reason = error.what();
    return nullptr;
  }
}

FontPtr OdFontLibrary::State::typeface(const std::u16string& name, bool bold, bool italic) {
  std::string reason;
  if (FontPtr font = family(name, bold, italic, reason)) return font;
  return standInTypeface(name, bold, italic, reason);
}

FontPtr OdFontLibrary::State::standInTypeface(const std::u16string& name, bool bold, bool italic,
                                              const std::string& reason) {
  std::string ignored;
  std::vector<std::u16string_view> names = odTypefaceAliases(name);
  names.insert(names.end(), std::begin(kLastTypefaces), std::end(kLastTypefaces));
  FontPtr font;
  for (std::u16string_view standIn : names) {
    if (!font) font = family(standIn, bold, italic, ignored);
  }
  if (!font) {
    if (auto file = loader->typefaces().findAny()) font = loader->typeface(*file);
  }
  if (!font) font = standInShapeFont(name, reason);
  note(OdFontSubstitution::kTypeface, name, font, reason);
  return font;
}

FontPtr OdFontLibrary::State::typefaceOfFile(const OdFontRequest& request) {
  std::string reason;
  try {
    if (auto path = loader->findTypefaceFile(request.file)) return loader->typeface({*path, 0, false, false});
    if (auto file = loader->typefaces().findFile(request.file)) return loader->typeface(*file);
  } catch (const OdError& error) {
    reason = error.what();
  }
  OdTypefaceOfFile known = odTypefaceOfFile(request.file);
  bool bold = known.bold || request.bold, italic = known.italic || request.italic;
  std::u16string name = known.family.empty() ? odStemOf(request.file) : std::u16string(known.family);
  if (FontPtr font = family(name, bold, italic, reason)) return font;
  return standInTypeface(name, bold, italic, reason);
}

FontPtr OdFontLibrary::State::shapeFont(const std::u16string& name, int codePage) {
  std::string reason;
  try {
    if (auto path = loader->findShapeFile(name)) return loader->shapeFont(*path, codePage);
  } catch (const OdError& error) {
    reason = error.what();
  }
  FontPtr font = standInShapeFont(name, reason);
  note(OdFontSubstitution::kShapeFont, name, font, reason);
  return font;
}

FontPtr OdFontLibrary::State::standInShapeFont(const std::u16string& name, const std::string& reason) {
  for (std::u16string_view standIn : odStrokeFontsFor(odStemOf(name))) {
    if (FontPtr font = loader->strokeFont(standIn)) return font;
  }
  std::string ignored;
  for (std::u16string_view last : kLastTypefaces) {
    if (FontPtr font = family(last, false, false, ignored)) return font;
  }
  throw OdError(eFileNotFound,
                reason.empty() ? "No font is installed that could stand in for " + odToUtf8(name) : reason);
}

void OdFontLibrary::State::addBigFont(const OdFontRequest& request, OdComposedFont::Parts& parts) {
  std::string reason;
  try {
    if (auto path = loader->findShapeFile(request.bigFontFile)) {
      parts.big = loader->shapeFont(*path, codePageOfBigFont(request), parts.primary);
      return;
    }
  } catch (const OdError& error) {
    reason = error.what();
  }
  for (std::u16string_view standIn : odStrokeFontsForBigfont(odStemOf(request.bigFontFile))) {
    if (!parts.bigSubstitute) parts.bigSubstitute = loader->strokeFont(standIn);
  }
  note(OdFontSubstitution::kBigFont, request.bigFontFile, parts.bigSubstitute, reason);
}

void OdFontLibrary::State::note(OdFontSubstitution::Kind kind, const std::u16string& wanted,
                                const FontPtr& used, const std::string& reason) {
  notes->add({.kind = kind,
              .wanted = wanted,
              .used = used ? used->name() : std::u16string(),
              .character = 0,
              .reason = reason});
}
