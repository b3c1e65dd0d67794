#include "od/db/OdDbTextStyleTableRecord.h"

#include <charconv>

#include "od/db/OdDbDatabase.h"
#include "od/db/new_record.h"
#include "od/gi/OdGiTextStyle.h"

ODRX_DEFINE_MEMBERS(OdDbTextStyleTableRecord, OdDbSymbolTableRecord, "STYLE")

namespace {

constexpr int kOrder[] = {2, 70, 40, 41, 50, 71, 42, 3, 4};
const OdDbSubclass kStyle{"AcDbTextStyleTableRecord", kOrder};

constexpr int kShapeFile = 1;
constexpr int kVertical = 4;
constexpr int kBackward = 2;
constexpr int kUpsideDown = 4;

/// Where the typeface and its bits stand in the extended data; nothing where they are missing.
struct FontGroups {
  std::optional<std::size_t> typeface;
  std::optional<std::size_t> bits;

  explicit FontGroups(const dxf::Record& record) {
    const auto range = record.xdata(u"ACAD");
    if (!range) return;
    typeface = record.find(1000, *range);
    bits = record.find(1071, *range);
  }
};

/// The number in a name such as "ANSI_1251"; 0 for a name without one.
int codePageOf(const OdDbDatabase& database) {
  const std::string name = database.getSysVarString(u"DWGCODEPAGE", u"").toUtf8();
  const std::size_t digits = name.find_first_of("0123456789");
  int number = 0;
  if (digits != std::string::npos) std::from_chars(name.data() + digits, name.data() + name.size(), number);
  return number;
}

}  // namespace

const OdDbSubclass& OdDbTextStyleTableRecord::ownPart() const { return kStyle; }

std::unique_ptr<dxf::Record> OdDbTextStyleTableRecord::newRecord() const {
  return odNewRecord("STYLE", {{100, u"AcDbSymbolTableRecord"},
                               {100, u"AcDbTextStyleTableRecord"},
                               {2, u""},
                               {70, 0},
                               {40, 0.0},
                               {41, 1.0},
                               {50, 0.0},
                               {71, 0},
                               {42, 2.5},
                               {3, u"txt"},
                               {4, u""}});
}

double OdDbTextStyleTableRecord::textSize() const { return groups(kStyle).real(40, 0); }

void OdDbTextStyleTableRecord::setTextSize(double size) { edit(kStyle).setReal(40, size, 0); }

double OdDbTextStyleTableRecord::priorSize() const { return groups(kStyle).real(42, 0); }

double OdDbTextStyleTableRecord::xScale() const { return groups(kStyle).real(41, 1); }

void OdDbTextStyleTableRecord::setXScale(double scale) { edit(kStyle).setReal(41, scale, 1); }

double OdDbTextStyleTableRecord::obliquingAngle() const { return groups(kStyle).angle(50); }

void OdDbTextStyleTableRecord::setObliquingAngle(double angle) { edit(kStyle).setAngle(50, angle); }

void OdDbTextStyleTableRecord::font(OdString& typeface, bool& bold, bool& italic, int& charset,
                                    int& pitchAndFamily) const {
  assertReadEnabled();
  const FontGroups found(record());
  typeface = found.typeface ? OdString(record().get_string(*found.typeface)) : OdString();
  const auto bits = static_cast<std::uint32_t>(found.bits ? record().get_int(*found.bits).value_or(0) : 0);
  bold = bits & OdGiTextStyle::kDescriptorBold;
  italic = bits & OdGiTextStyle::kDescriptorItalic;
  charset = static_cast<int>(bits >> 8 & 0xFF);
  pitchAndFamily = static_cast<int>(bits & 0xFF);
}

void OdDbTextStyleTableRecord::setFont(const OdString& typeface, bool bold, bool italic, int charset,
                                       int pitchAndFamily) {
  assertWriteEnabled();
  const std::int64_t bits =
      (bold ? OdGiTextStyle::kDescriptorBold : 0u) | (italic ? OdGiTextStyle::kDescriptorItalic : 0u) |
      static_cast<unsigned>(charset & 0xFF) << 8 | static_cast<unsigned>(pitchAndFamily & 0xFF);
  dxf::Record& target = record();
  if (!target.xdata(u"ACAD")) {
    target.insert_string(target.size(), 1001, u"ACAD");
    target.insert_string(target.size(), 1000, u"");
    target.insert_int(target.size(), 1071, 0);
  }
  const std::size_t begin = target.xdata(u"ACAD")->begin;
  if (!FontGroups(target).typeface) target.insert_string(begin, 1000, u"");
  const std::size_t name = FontGroups(target).typeface.value_or(begin);
  if (!FontGroups(target).bits) target.insert_int(name + 1, 1071, 0);
  const std::size_t word = FontGroups(target).bits.value_or(name + 1);
  if (target.get_string(name) != typeface.str()) target.set_string(name, typeface.str());
  if (target.get_int(word) != bits) target.set_int(word, bits);
  touch();
}

OdString OdDbTextStyleTableRecord::fileName() const { return groups(kStyle).string(3); }

void OdDbTextStyleTableRecord::setFileName(const OdString& name) { edit(kStyle).setString(3, name, u""); }

OdString OdDbTextStyleTableRecord::bigFontFileName() const { return groups(kStyle).string(4); }

void OdDbTextStyleTableRecord::setBigFontFileName(const OdString& name) {
  edit(kStyle).setString(4, name, u"");
}

bool OdDbTextStyleTableRecord::isVertical() const { return groups(kStyle).flag(70, kVertical); }

bool OdDbTextStyleTableRecord::isShapeFile() const { return groups(kStyle).flag(70, kShapeFile); }

bool OdDbTextStyleTableRecord::isBackward() const { return groups(kStyle).flag(71, kBackward); }

bool OdDbTextStyleTableRecord::isUpsideDown() const { return groups(kStyle).flag(71, kUpsideDown); }

void OdDbTextStyleTableRecord::getTextStyle(OdGiTextStyle& style) const {
  OdString typeface;
  bool bold = false, italic = false;
  int charset = 0, pitch = 0;
  font(typeface, bold, italic, charset, pitch);
  style.setFileName(fileName());
  style.setBigFontFileName(bigFontFileName());
  if (!typeface.isEmpty()) style.setFont(typeface, bold, italic, charset, pitch);
  style.setTextSize(textSize());
  style.setXScale(xScale());
  style.setObliquingAngle(obliquingAngle());
  style.setCodePage(database() ? codePageOf(*database()) : 0);
  style.setVertical(isVertical());
  style.setBackward(isBackward());
  style.setUpsideDown(isUpsideDown());
}
