#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "od/fonts/FontFolders.h"
#include "od/fonts/OdFontLibrary.h"
#include "od/fonts/OdTrueTypeFont.h"

class TypefaceIndex;

/// Loads font files and keeps what it loaded. It substitutes nothing.
class FontLoader {
 public:
  explicit FontLoader(OdFontPlaces places);
  ~FontLoader();

  void addSearchPath(const std::string& folder);
  void addShapeFontFolder(const std::string& folder) { m_shapes.add(folder); }
  OdFontPlaces places() const { return {m_search.folders(), m_shapes.folders(), m_strokes.folders()}; }

  /// The installed typefaces; listed when first asked for.
  const TypefaceIndex& typefaces();
  /// Throws `OdError` when the file cannot be used.
  std::shared_ptr<const OdFont> typeface(const OdTypefaceFile& file);

  /// The path of a shape or stroke font: as it stands, in the search paths, in the folders of shape fonts,
  /// among the stroke fonts. `.shx` is added to a name without extension.
  std::optional<std::string> findShapeFile(std::u16string_view name) const;
  /// File names of the compiled shape fonts in the search paths that hold letters.
  std::vector<std::u16string> shapeFontFiles() const;
  /// The path of a typeface's file in the search paths.
  std::optional<std::string> findTypefaceFile(std::u16string_view name) const;

  /// A shape or stroke font by its path. `primary` is for a big font alone. Throws `OdError` when the file
  /// cannot be used.
  std::shared_ptr<const OdFont> shapeFont(const std::string& path, int codePage,
                                          std::shared_ptr<const OdFont> primary = nullptr);
  /// One of the stroke fonts by its file name; null when it is not installed or broken.
  std::shared_ptr<const OdFont> strokeFont(std::u16string_view fileName);

 private:
  struct ShapeKey {
    std::string path{};
    int codePage = 0;
    std::shared_ptr<const OdFont> primary{};
    friend auto operator<=>(const ShapeKey&, const ShapeKey&) = default;
  };

  FontFolders m_search;
  FontFolders m_shapes;
  FontFolders m_strokes;
  OdFreeType m_freeType;
  std::unique_ptr<TypefaceIndex> m_typefaces;
  std::map<OdTypefaceFile, std::shared_ptr<const OdFont>> m_loadedTypefaces;
  std::map<ShapeKey, std::shared_ptr<const OdFont>> m_loadedShapes;
};
