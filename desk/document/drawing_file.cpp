#include "desk/document/drawing_file.h"

#include <memory>

#include "mtext/entity/mtext_layout.h"
#include "od/base/unicode.h"

namespace {

OdDbDatabasePtr prepared(OdDbDatabasePtr drawing) {
  drawing->setTextLayout(std::make_shared<mtext::mtext_layout>());
  return drawing;
}

}  // namespace

OdDbDatabasePtr openDrawing(const std::filesystem::path& file) {
  return prepared(OdDbDatabase::readFile(file));
}

OdDbDatabasePtr newDrawing() { return prepared(OdDbDatabase::createEmpty()); }

std::filesystem::path pathOf(std::u16string_view text) { return std::filesystem::path(odToUtf8(text)); }

std::u16string textOf(const std::filesystem::path& path) { return odToUtf16(path.string()); }
