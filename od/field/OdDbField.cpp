#include "od/field/OdDbField.h"

#include <charconv>

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

/// The container's text with each index marker replaced by the child's code in its own markers.
std::u16string expandChildren(const OdDbField& container, std::u16string_view text) {
  std::u16string result;
  while (true) {
    auto marker = text.find(kIndexMarker);
    auto end = marker == text.npos ? marker : text.find(kMarkerEnd, marker);
    if (end == text.npos) return result.append(text);
    auto digits = text.substr(marker + kIndexMarker.size(), end - marker - kIndexMarker.size());
    int index = readIndex(digits);
    auto next = end + kMarkerEnd.size();
    bool known = index >= 0 && index < container.childCount();
    result.append(text.substr(0, marker));
    result.append(known ? container.getChild(index)->getFieldCode(OdDbField::kAddMarkers).str()
                        : std::u16string(text.substr(marker, next - marker)));
    text.remove_prefix(next);
  }
}

}  // namespace

OdString OdDbField::getFieldCode(int flags) const {
  if (flags == kEvaluatedText) return m_evaluated;
  if (flags != kAddMarkers) return m_code;
  return isContainer() ? OdString(expandChildren(*this, m_code.str())) : OdString(withMarkers(m_code.str()));
}

OdSmartPtr<OdDbField> OdDbField::getChild(int index, bool) const {
  if (index < 0 || index >= childCount()) throw OdError_InvalidIndex();
  return m_children[static_cast<std::size_t>(index)];
}
