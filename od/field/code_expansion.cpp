#include "od/field/code_expansion.h"

#include <vector>

#include "od/field/OdDbField.h"
#include "od/field/field_markers.h"

namespace field_code {

namespace {

class Expansion {
 public:
  std::u16string of(const OdDbField& field) {
    enter(field);
    while (!m_open.empty()) step();
    return std::move(m_result);
  }

 private:
  /// Longest sum of inserted codes and of what they show, in characters; references beyond stay as they are.
  static constexpr std::size_t kLongest = std::size_t{1} << 22;

  struct Frame {
    const OdDbField* field;
    OdString code;
    std::size_t next = 0;  ///< of the code, behind what is done
  };

  void enter(const OdDbField& field) {
    if (!field.isContainer()) m_result.append(kOdMarkerBegin);
    m_open.push_back({&field, field.getFieldCode(OdDbField::kFieldCode)});
  }

  void leave() {
    if (!m_open.back().field->isContainer()) m_result.append(kOdMarkerEnd);
    m_open.pop_back();
  }

  void step() {
    Frame& frame = m_open.back();
    const std::u16string_view code = frame.code.str();
    const auto found = odFindReference(code, kOdChildReference, frame.next);
    m_result.append(code.substr(frame.next, found ? found->begin - frame.next : code.npos));
    if (!found) return leave();
    frame.next = found->end;
    insert(*frame.field, found->number, found->in(code));
  }

  void insert(const OdDbField& holder, std::uint64_t index, std::u16string_view reference) {
    const OdDbFieldPtr child = holder.childOrNull(index);
    if (!child) return void(m_result.append(reference));
    const std::size_t cost = child->getFieldCode(OdDbField::kFieldCode).str().size() +
                             child->getFieldCode(OdDbField::kEvaluatedText).str().size();
    if (cost > kLongest - m_inserted) return void(m_result.append(reference));
    m_inserted += cost;
    enter(*child);
  }

  std::vector<Frame> m_open;
  std::u16string m_result;
  std::size_t m_inserted = 0;
};

}  // namespace

std::u16string expanded(const OdDbField& field) { return Expansion().of(field); }

}  // namespace field_code
