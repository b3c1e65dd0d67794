#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbDrawing.h"
#include "od/db/OdDbMText.h"
#include "od/db/column_join.h"
#include "od/db/field_reader.h"
#include "od/db/mtext_subclass.h"
#include "od/dxf/chunked_text.h"
#include "od/evaluate/evaluate_field.h"

// The text itself. When a newer drawing is saved for an old program the entity gets a simplified text, and
// the true one goes into a record of the extension dictionary, with a checksum of the simplified one.

namespace {

const OdDbSubclass& kMText = odMTextSubclass();
constexpr dxf::ChunkCodes kAllInOnes{1, 1};

/// What a field shows, as letters of a text in that some characters are codes.
std::u16string asLetters(std::u16string_view text) {
  std::u16string letters;
  for (const char16_t unit : text) {
    if (unit == u'\\' || unit == u'{' || unit == u'}') letters += u'\\';
    if (unit == u'\n') {
      letters += u"\\P";
    } else if (unit != u'\r') {
      letters += unit;
    }
  }
  return letters;
}

}  // namespace

OdString OdDbMText::ownContents() const { return dxf::read_chunked_text(record(), groups(kMText).range()); }

/// The record with the true text; null when there is none or the entity's text was changed without it.
dxf::Record* OdDbMText::trueContents() const {
  const auto extension = odOpen<OdDbDictionary>(extensionDictionary());
  const OdDbObjectId id = extension ? extension->getAt(u"ACAD_MTEXT_RT") : OdDbObjectId();
  dxf::Record* kept = id.isNull() ? nullptr : id.stub()->record;
  if (!kept) return nullptr;
  const auto sum = kept->find(40, kept->body());
  return sum && kept->get_double(*sum) == odTextChecksum(ownContents().str()) ? kept : nullptr;
}

OdString OdDbMText::ownTrueContents() const {
  if (const dxf::Record* kept = trueContents())
    return dxf::read_chunked_text(*kept, kept->body(), kAllInOnes);
  return ownContents();
}

OdString OdDbMText::contents() const {
  std::vector<std::u16string> texts;
  for (const OdString& text : contentsByEntity()) texts.push_back(text.str());
  return odJoinColumns(texts);
}

void OdDbMText::setContents(const OdString& contents) {
  assertWriteEnabled();
  if (this->contents() == OdString(record().manner().codec.escape_missing(contents.str()))) return;
  emptyLinkedColumns();
  setOwnContents(contents);
}

void OdDbMText::setOwnContents(const OdString& contents) {
  assertWriteEnabled();
  const std::u16string written = record().manner().codec.escape_missing(contents.str());
  if (ownTrueContents() == OdString(written)) return;
  m_textChanged = true;
  dxf::Record* kept = trueContents();
  const OdDbGroupEditor text = edit(kMText);
  dxf::write_chunked_text(record(), text.range(), text.place(1), contents.str());
  touch();
  // The checksum lays the old true text aside, unless both texts happen to have the same one.
  if (kept && trueContents() == kept)
    dxf::write_chunked_text(*kept, kept->body(), kept->body().end, contents.str(), kAllInOnes);
}

OdString OdDbMText::fieldHostText() const { return ownContents(); }

void OdDbMText::setFieldHostText(const OdDbField& field) {
  emptyLinkedColumns();
  setOwnContents(odContainerText(field, asLetters));
}
