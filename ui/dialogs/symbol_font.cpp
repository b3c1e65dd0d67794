#include "ui/dialogs/symbol_font.h"

#include "host/document.h"
#include "host/exports.h"
#include "od/db/OdDbDatabase.h"
#include "od/fonts/OdFontLibrary.h"

namespace dialogs {
namespace {

OdFontPlaces places_of_drawing() {
  HostDocument* const document = host::active_document();
  return document ? document->database().fontLibrary().places() : OdFontPlaces();
}

OdFontRequest request_of(const mtext::format::string& format) {
  OdFontRequest request;
  (format.is_shx ? request.file : request.typeface) = format.font.str();
  request.bold = format.flags & mtext::format::flag_bold;
  request.italic = format.flags & mtext::format::flag_italic;
  request.charset = static_cast<int>(format.charset);
  return request;
}

}  // namespace

std::shared_ptr<const OdFont> font_to_look_at(const mtext::format::string& format) {
  return OdFontLibrary(places_of_drawing()).find(request_of(format));
}

}  // namespace dialogs
