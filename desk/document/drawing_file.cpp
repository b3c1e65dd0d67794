#include "desk/document/drawing_file.h"

#include <memory>

#include "mtext/entity/mtext_layout.h"
#include "od/base/unicode.h"
#include "od/fonts/OdFontLibrary.h"
#include "od/fonts/shape_font_folders.h"

namespace {

/// `folder` is the drawing's: drawings often come with their fonts beside them.
OdDbDatabasePtr prepared(OdDbDatabasePtr drawing, const std::filesystem::path& folder) {
  drawing->setTextLayout(std::make_shared<mtext::mtext_layout>());
  if (!folder.empty()) drawing->fontLibrary().addShapeFontFolder(folder.string());
  for (const std::string& each : odShapeFontFolders()) drawing->fontLibrary().addShapeFontFolder(each);
  return drawing;
}

}  // namespace

OdDbDatabasePtr openDrawing(const std::filesystem::path& file) {
  return prepared(OdDbDatabase::readFile(file), std::filesystem::absolute(file).parent_path());
}

OdDbDatabasePtr newDrawing() { return prepared(OdDbDatabase::createEmpty(), {}); }

std::filesystem::path pathOf(std::u16string_view text) { return std::filesystem::path(odToUtf8(text)); }

std::u16string textOf(const std::filesystem::path& path) { return odToUtf16(path.string()); }
