#include "od/db/field_writer.h"

#include <deque>
#include <unordered_set>

#include "od/db/OdDbDrawing.h"
#include "od/db/field_code_form.h"
#include "od/db/field_list.h"
#include "od/db/field_reader.h"
#include "od/db/field_value_groups.h"
#include "od/dxf/chunked_text.h"
#include "od/evaluate/field_code.h"
#include "od/field/field_markers.h"

namespace {

constexpr dxf::ChunkCodes kCodePieces{3, 2};
constexpr std::u16string_view kAttributeKey = u"ACFD_FIELDTEXT_ATTDEF";
constexpr std::u16string_view kChecksumKey = u"ACFD_FIELDTEXT_CHECKSUM";
constexpr std::u16string_view kValueKey = u"ACFD_FIELD_VALUE";

/// Replaces the groups of a FIELD from `from` up to the end of its part by what `append` appends to the
/// record.
template <typename Append>
void rewrite(dxf::Record& record, std::size_t from, const Append& append) {
  const std::size_t end = OdDbGroups(record, odFieldSubclass()).range().end;
  const std::vector<dxf::Group> behind(record.begin() + static_cast<std::ptrdiff_t>(end), record.end());
  record.erase(dxf::Range{from, record.size()});
  append();
  for (const dxf::Group& group : behind) record.insert(record.size(), group);
}

/// A FIELD that has just been made: handle and owner alone.
bool isEmpty(const dxf::Record& record) { return !record.find(100, record.body()); }

/// Writes the groups of one FIELD.
class FieldGroups {
 public:
  FieldGroups(dxf::Record& record, const OdDbField& field) : m_record(record), m_field(field) {}

  /// All, with `children` for the indices in the code and, of a container, its host's `checksum`.
  void writeWhole(const std::vector<dxf::Handle>& children, double checksum) {
    const bool ofAttribute = hasEntry(kAttributeKey);
    if (isEmpty(m_record)) string(100, u"AcDbField");
    rewrite(m_record, m_record.subclass("AcDbField")->begin, [&] {
      writeCode(children);
      writeState();
      writeEntries(ofAttribute, checksum);
      writeValue();
    });
  }

  /// What the field shows, unless that is what stands there.
  void writeEvaluation() {
    const OdDbGroups groups(m_record, odFieldSubclass());
    const auto value = m_record.find(7, groups.range());
    if (const auto state = m_record.find(94, groups.range())) m_record.set_int(*state, m_field.state());
    if (const auto status = m_record.find(95, groups.range()))
      m_record.set_int(*status, m_field.evaluationStatus());
    rewrite(m_record, value.value_or(groups.range().end), [this] { writeValue(); });
  }

 private:
  void string(int code, std::u16string_view text) { m_record.insert_string(m_record.size(), code, text); }
  void integer(int code, std::int64_t value) { m_record.insert_int(m_record.size(), code, value); }

  void handles(int countCode, int code, const std::vector<dxf::Handle>& list) {
    integer(countCode, static_cast<std::int64_t>(list.size()));
    for (const dxf::Handle handle : list) m_record.insert_handle(m_record.size(), code, handle);
  }

  bool hasEntry(std::u16string_view key) const {
    const dxf::Range range = OdDbGroups(m_record, odFieldSubclass()).range();
    for (const std::size_t i : m_record.find_all(6, range))
      if (m_record.get_string(i) == key) return true;
    return false;
  }

  void writeCode(const std::vector<dxf::Handle>& children) {
    std::vector<dxf::Handle> objects;
    const OdString code = odFieldCodeInFile(m_field.getFieldCode(OdDbField::kFieldCode), objects);
    string(1, m_field.evaluatorId().str());
    dxf::write_chunked_text(m_record, {m_record.size(), m_record.size()}, m_record.size(), code.str(),
                            kCodePieces);
    handles(90, 360, children);
    handles(97, 331, objects);
  }

  void writeState() {
    if (m_record.manner().version < dxf::R2007) string(4, format().str());
    integer(91, m_field.evaluationOption());
    integer(92, 0);
    integer(94, m_field.state());
    integer(95, m_field.evaluationStatus());
    integer(96, 0);
    string(300, u"");
  }

  OdString format() const {
    if (m_field.isContainer()) return {};
    return OdString(odReadFieldCode(m_field.getFieldCode(OdDbField::kFieldCode).str()).format);
  }

  void entry(std::u16string_view key, const OdFieldValue& value) {
    string(6, key);
    odAppendFieldValue(m_record, value, {});
  }

  void writeEntries(bool ofAttribute, double checksum) {
    if (m_field.isContainer()) {
      integer(93, ofAttribute ? 2 : 1);
      if (ofAttribute) entry(kAttributeKey, std::int32_t{1});
      return entry(kChecksumKey, checksum);
    }
    const OdString code = m_field.getFieldCode(OdDbField::kFieldCode);
    const std::u16string_view subject = odReadFieldCode(code.str()).subject;
    const auto object = odFindReference(subject, kOdObjectReference);
    if (m_field.evaluatorId() == OdString(u"AcVar")) {
      integer(93, 1);
      entry(u"Variable", OdString(subject));
    } else if (m_field.evaluatorId() == OdString(u"AcObjProp") && object) {
      integer(93, 2);
      string(6, u"ObjectPropertyId");
      odAppendObjectValue(m_record, object->number);
      entry(u"ObjectPropertyName", OdString(subject.substr(subject.rfind(u'.') + 1)));
    } else {
      integer(93, 0);
    }
  }

  /// A container keeps no text of its own: that is the host's.
  void writeValue() {
    const OdString text =
        m_field.isContainer() ? OdString() : m_field.getFieldCode(OdDbField::kEvaluatedText);
    string(7, kValueKey);
    odAppendFieldValue(m_record, m_field.value(), format());
    string(301, text.str());
    integer(98, text.getLength());
  }

  dxf::Record& m_record;
  const OdDbField& m_field;
};

/// Whether the object is a field that belongs to `parent`, erased or not.
bool isFieldOf(const OdDbStub& stub, const OdDbStub& parent) {
  return stub.record && stub.record->is("FIELD") && stub.record->owner() == parent.handle.value();
}

/// Writes a field and those within it, one after the other.
class FieldWriter {
 public:
  FieldWriter(OdDbDrawing& drawing, double checksum) : m_drawing(drawing), m_checksum(checksum) {}

  void write(OdDbStub& stub, const OdDbField& container) {
    m_waiting.push_back({&container, &stub, /*whole=*/true});
    for (; !m_waiting.empty(); m_waiting.pop_front()) writeOne(m_waiting.front());
    odListFields(m_drawing, m_written);
  }

 private:
  struct Waiting {
    const OdDbField* field;
    OdDbStub* stub;
    bool whole;  ///< false: the object is there, and at most shows something else
  };

  void writeOne(const Waiting& item) {
    m_written.push_back(item.stub->handle.value());
    FieldGroups groups(*item.stub->record, *item.field);
    if (item.whole) return groups.writeWhole(placeChildren(item), m_checksum);
    for (int i = 0; i < item.field->childCount(); ++i) placeChild(*item.stub, *item.field->getChild(i));
    if (odFieldShown(*item.stub->record) != item.field->getFieldCode(OdDbField::kEvaluatedText))
      groups.writeEvaluation();
  }

  std::vector<dxf::Handle> placeChildren(const Waiting& item) {
    std::unordered_set<dxf::Handle> leaving;
    if (!isEmpty(*item.stub->record))
      for (const dxf::Handle handle : odFieldChildren(*item.stub->record)) leaving.insert(handle);
    std::vector<dxf::Handle> children;
    for (int i = 0; i < item.field->childCount(); ++i) {
      children.push_back(placeChild(*item.stub, *item.field->getChild(i)));
      leaving.erase(children.back());
    }
    for (const dxf::Handle handle : leaving)
      if (OdDbStub* stub = m_drawing.find(OdDbHandle(handle)); stub && isChild(*stub, *item.stub))
        odEraseField(m_drawing, *stub);
    return children;
  }

  /// The object that the child keeps or gets.
  dxf::Handle placeChild(const OdDbStub& parent, const OdDbField& child) {
    OdDbStub* kept = m_drawing.find(OdDbHandle(child.fileHandle()));
    const bool keeps = kept && isChild(*kept, parent) && m_placed.insert(kept).second;
    OdDbStub& stub =
        keeps ? *kept : m_drawing.addObject("FIELD", parent.handle, OdDbDrawing::kOwnerKeepsQuiet);
    m_waiting.push_back({&child, &stub, !keeps});
    return stub.handle.value();
  }

  static bool isChild(const OdDbStub& stub, const OdDbStub& parent) {
    return !stub.erased && isFieldOf(stub, parent);
  }

  OdDbDrawing& m_drawing;
  double m_checksum;
  std::deque<Waiting> m_waiting;
  std::unordered_set<const OdDbStub*> m_placed;
  std::vector<dxf::Handle> m_written;
};

}  // namespace

void odWriteField(OdDbDrawing& drawing, OdDbStub& stub, const OdDbField& container, double checksum) {
  FieldWriter(drawing, checksum).write(stub, container);
}

void odEraseField(OdDbDrawing& drawing, OdDbStub& stub, bool erasing) {
  std::vector<OdDbStub*> fields{&stub};
  std::unordered_set<OdDbStub*> seen{&stub};
  std::vector<dxf::Handle> handles;
  for (std::size_t at = 0; at < fields.size(); ++at) {
    fields[at]->erased = erasing;
    handles.push_back(fields[at]->handle.value());
    for (const dxf::Handle child : odFieldChildren(*fields[at]->record)) {
      OdDbStub* inner = drawing.find(OdDbHandle(child));
      if (inner && isFieldOf(*inner, *fields[at]) && seen.insert(inner).second) fields.push_back(inner);
    }
  }
  if (erasing) {
    odUnlistFields(drawing, handles);
  } else {
    odListFields(drawing, handles);
  }
}
