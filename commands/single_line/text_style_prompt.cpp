#include "commands/single_line/text_style_prompt.h"

#include <cstdio>

#include "host/document.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "od/base/unicode.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "ui/resources/message_format.h"

namespace {

constexpr int kTypeStyle = 1019;
constexpr int kListWord = 1020;
constexpr int kStyles = 1021;
constexpr int kNoSuchStyle = 1022;
constexpr int kBold = 1040;
constexpr int kItalic = 1041;
constexpr int kSize = 1049;
constexpr int kStyle = 1059;
constexpr int kFont = 1060;
constexpr int kOblique = 1062;
constexpr int kWidth = 1063;

using StylePtr = OdDbTextStyleTableRecordPtr;

std::u16string number(double value) {
  char digits[32];
  std::snprintf(digits, sizeof digits, "%g", value);
  return odToUtf16(digits);
}

std::u16string named(int word, std::u16string_view value) {
  return host::resource_string(word) + u": " + std::u16string(value);
}

std::u16string description(const OdDbTextStyleTableRecord& style) {
  std::u16string line =
      named(kStyle, u"\"" + style.getName().str() + u"\" ") + named(kFont, style.fileName().str() + u"  ") +
      named(kSize, number(style.textSize()) + u"  ") + named(kWidth, number(style.xScale()) + u"  ") +
      named(kOblique, number(style.obliquingAngle()) + u"  ");
  if (style.isShapeFile()) return line;
  OdString typeface;
  bool bold = false, italic = false;
  int charset = 0, pitch = 0;
  style.font(typeface, bold, italic, charset, pitch);
  if (bold) line += host::resource_string(kBold) + u"  ";
  if (italic) line += host::resource_string(kItalic) + u"  ";
  return line;
}

void list_styles(HostDocument& document) {
  document.prompt().message(host::resource_string(kStyles));
  const auto table = odCastOrThrow<OdDbSymbolTable>(document.database().getTextStyleTableId().openObject());
  for (const OdDbObjectId& id : table->records()) {
    const auto style = odCast<OdDbTextStyleTableRecord>(id.openObject());
    if (style) document.prompt().message(description(*style));
  }
}

StylePtr find_style(OdDbDatabase& database, const std::u16string& name) {
  const auto table = odCastOrThrow<OdDbSymbolTable>(database.getTextStyleTableId().openObject());
  const OdDbObjectId id = table->getAt(name);
  const auto style = odCast<OdDbTextStyleTableRecord>(id ? id.openObject() : OdDbObjectPtr());
  // A record for a file of shapes can draw no text.
  return style && !style->isShapeFile() ? style : StylePtr();
}

std::u16string question(OdDbDatabase& database) {
  const auto current = odCastOrThrow<OdDbTextStyleTableRecord>(database.getTEXTSTYLE().openObject());
  const std::u16string asked = resources::format_string(kTypeStyle, {host::resource_string(kListWord)});
  return resources::format_message(u"%s <%s>:", {asked, current->getName().str()});
}

}  // namespace

bool ask_text_style(HostDocument& document) {
  OdDbDatabase& database = document.database();
  for (;;) {
    std::u16string name;
    const int answer =
        document.prompt().read_input(question(database), u"", kReadWholeLine | kReadMayBeEmpty, &name);
    if (answer != kAnswerValue) return false;
    if (name.empty()) return true;
    if (name == host::resource_string(kListWord)) {
      list_styles(document);
    } else if (const StylePtr style = find_style(database, name)) {
      database.setSysVarString(u"TEXTSTYLE", style->getName());
      return true;
    } else {
      document.prompt().message(host::resource_string(kNoSuchStyle));
    }
  }
}
