#include "od/fonts/FontLoader.h"

#include <filesystem>

#include "od/base/OdError.h"
#include "od/base/unicode.h"
#include "od/fonts/OdJhfFont.h"
#include "od/fonts/OdLffFont.h"
#include "od/fonts/OdShxFont.h"
#include "od/fonts/TypefaceIndex.h"
#include "od/fonts/font_file.h"

namespace {

/// True for what a text can be written in; big fonts only go beside another font.
bool holdsLetters(const std::string& path) {
  try {
    const ShxFile file = ShxFile::parse(odReadFontFile(path), path);
    return file.isTextFont() && !file.isBigfont();
  } catch (const OdError&) {
    return false;
  }
}

}  // namespace

FontLoader::FontLoader(OdFontPlaces places)
    : m_search(std::move(places.searchPaths)),
      m_shapes(std::move(places.shapeFontPaths)),
      m_strokes(std::move(places.strokeFontPaths)) {}

FontLoader::~FontLoader() = default;

void FontLoader::addSearchPath(const std::string& folder) {
  m_search.add(folder);
  m_typefaces.reset();
}

const TypefaceIndex& FontLoader::typefaces() {
  if (!m_typefaces) m_typefaces = std::make_unique<TypefaceIndex>(m_search.folders());
  return *m_typefaces;
}

std::shared_ptr<const OdFont> FontLoader::typeface(const OdTypefaceFile& file) {
  auto& known = m_loadedTypefaces[file];
  if (!known) {
    if (!m_freeType) m_freeType = odStartFreeType();
    known = std::make_shared<OdTrueTypeFont>(m_freeType, file);
  }
  return known;
}

std::optional<std::string> FontLoader::findShapeFile(std::u16string_view name) const {
  std::u16string whole(name);
  if (odExtensionOf(whole).empty()) whole += u".shx";
  std::string path = odToUtf8(whole);
  std::error_code failure;
  if (path.find('/') != path.npos && std::filesystem::is_regular_file(path, failure)) return path;
  if (auto found = m_search.find(odFileNameOf(whole))) return found;
  if (auto found = m_shapes.find(odFileNameOf(whole))) return found;
  return m_strokes.find(odFileNameOf(whole));
}

std::vector<std::u16string> FontLoader::shapeFontFiles() const {
  FontFolders folders = m_search;
  for (const std::string& folder : m_shapes.folders()) folders.add(folder);
  std::vector<std::u16string> names;
  for (const std::string& path : folders.withExtension(u"shx")) {
    if (holdsLetters(path)) names.emplace_back(odFileNameOf(odToUtf16(path)));
  }
  return names;
}

std::optional<std::string> FontLoader::findTypefaceFile(std::u16string_view name) const {
  return m_search.find(odFileNameOf(name));
}

std::shared_ptr<const OdFont> FontLoader::shapeFont(const std::string& path, int codePage,
                                                    std::shared_ptr<const OdFont> primary) {
  auto& known = m_loadedShapes[{path, codePage, primary}];
  if (known) return known;
  std::u16string name(odFileNameOf(odToUtf16(path)));
  std::u16string extension = odExtensionOf(name);
  std::string bytes = odReadFontFile(path);
  if (extension == u"lff") {
    known = std::make_shared<OdLffFont>(std::move(bytes), name);
  } else if (extension == u"jhf") {
    known = std::make_shared<OdJhfFont>(bytes, name);
  } else {
    ShxFile file = ShxFile::parse(std::move(bytes), odToUtf8(name));
    known = std::make_shared<OdShxFont>(std::move(file), name, codePage, std::move(primary));
  }
  return known;
}

std::shared_ptr<const OdFont> FontLoader::strokeFont(std::u16string_view fileName) {
  auto path = m_strokes.find(fileName);
  if (!path) return nullptr;
  try {
    return shapeFont(*path, 0);
  } catch (const OdError&) {
    // A stand-in that is broken is as good as none: the next one is taken.
    return nullptr;
  }
}
