#include "od/field/OdDbField.h"

#include <charconv>
#include <iterator>

ODRX_DEFINE_MEMBERS(OdDbField, OdRxObject, u"FIELD")

namespace {

constexpr std::u16string_view kIndexMarker = u"%<\\_FldIdx ";
constexpr std::u16string_view kMarkerEnd = u">%";

/// The number written in decimal digits in `text`, or -1.
int readIndex(std::u16string_view text) {
  std::string digits(text.begin(), text.end());
  int value = -1;
  auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return error == std::errc() && end == digits.data() + digits.size() ? value : -1;
}

std::u16string withMarkers(std::u16string_view code) {
  return std::u16string(u"%<").append(code).append(kMarkerEnd);
}

/// Replaces index markers by the children's codes. Depth costs heap, and a child that is named again and
/// again, or that holds others which are, cannot fill the memory.
class Expansion {
 public:
  std::u16string of(const OdDbField& container) {
    enter(container);
    while (!m_open.empty()) step();
    return std::move(m_result);
  }

 private:
  /// Longest sum of inserted codes, in characters; markers beyond stay as they are.
  static constexpr std::size_t kLongest = std::size_t{1} << 22;

  struct Frame {
    const OdDbField* container;
    OdString code;
    std::size_t next = 0;  ///< of the code, behind what is done
  };

  void enter(const OdDbField& container) {
    m_open.push_back({&container, container.getFieldCode(OdDbField::kFieldCode)});
  }

  void step() {
    Frame& frame = m_open.back();
    const std::u16string_view code = frame.code.str();
    const auto marker = code.find(kIndexMarker, frame.next);
    const auto end = marker == code.npos ? marker : code.find(kMarkerEnd, marker);
    if (end == code.npos) {
      m_result.append(code.substr(frame.next));
      return m_open.pop_back();
    }
    const auto digits = code.substr(marker + kIndexMarker.size(), end - marker - kIndexMarker.size());
    const auto behind = end + kMarkerEnd.size();
    m_result.append(code.substr(frame.next, marker - frame.next));
    frame.next = behind;
    insert(*frame.container, readIndex(digits), code.substr(marker, behind - marker));
  }

  void insert(const OdDbField& container, int index, std::u16string_view marker) {
    if (index < 0 || index >= container.childCount()) return void(m_result.append(marker));
    const OdDbFieldPtr child = container.getChild(index);
    const OdString code = child->getFieldCode(OdDbField::kFieldCode);
    const std::size_t cost = code.str().size() + 1;
    if (cost > kLongest - m_inserted) return void(m_result.append(marker));
    m_inserted += cost;
    if (child->isContainer()) return enter(*child);
    m_result.append(withMarkers(code.str()));
  }

  std::vector<Frame> m_open;
  std::u16string m_result;
  std::size_t m_inserted = 0;
};

}  // namespace

/// The children of children end one after the other, or a deep field would end on the stack.
OdDbField::~OdDbField() {
  std::vector<OdDbFieldPtr> ending = std::move(m_children);
  while (!ending.empty()) {
    const OdDbFieldPtr field = std::move(ending.back());
    ending.pop_back();
    if (!field || field->numRefs() != 1) continue;
    std::move(field->m_children.begin(), field->m_children.end(), std::back_inserter(ending));
    field->m_children.clear();
  }
}

OdString OdDbField::getFieldCode(int flags) const {
  if (flags == kEvaluatedText) return m_evaluated;
  if (flags != kAddMarkers) return m_code;
  return isContainer() ? OdString(Expansion().of(*this)) : OdString(withMarkers(m_code.str()));
}

OdSmartPtr<OdDbField> OdDbField::getChild(int index, bool) const {
  if (index < 0 || index >= childCount()) throw OdError_InvalidIndex();
  return m_children[static_cast<std::size_t>(index)];
}
