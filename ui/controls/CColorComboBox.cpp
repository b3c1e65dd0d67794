#include "ui/controls/CColorComboBox.h"

#include <algorithm>

#include "host/translate.h"

namespace {

constexpr int kCustom = 1055;
constexpr int kStandardColors = 7;

/// One colour dialog at a time, in the whole process.
class dialog_guard {
 public:
  dialog_guard() : m_first(!s_open) { s_open = true; }
  ~dialog_guard() {
    if (m_first) s_open = false;
  }
  dialog_guard(const dialog_guard&) = delete;
  dialog_guard& operator=(const dialog_guard&) = delete;

  bool is_first() const { return m_first; }

 private:
  static inline bool s_open = false;
  bool m_first;
};

}  // namespace

CColorComboBox::CColorComboBox() : m_codes{controls::kByLayerCode} {
  for (int index = 0; index <= kStandardColors; ++index) m_codes.push_back(controls::index_code(index));
  m_codes.push_back(controls::kNoColor);
}

std::u16string CColorComboBox::rowText(std::size_t row) const {
  const color_code code = m_codes[row];
  return code == controls::kNoColor ? host::resource_string(kCustom) : controls::name_of(code);
}

controls::color_swatch CColorComboBox::rowSwatch(std::size_t row) const {
  return controls::swatch_of(m_codes[row], m_layer_code);
}

void CColorComboBox::setLayerColor(color_code layer) {
  m_layer_code = layer;
  if (listed) listed();
}

void CColorComboBox::select(std::optional<color_code> code) {
  const auto found = std::find(m_codes.begin(), m_codes.end() - 1, code.value_or(controls::kNoColor));
  m_selected.reset();
  if (found != m_codes.end() - 1) {
    m_selected = static_cast<std::size_t>(found - m_codes.begin());
    m_last_code = *found;
  }
  if (shown) shown();
}

// A cancelled dialog gives the last colour back to the owner, as if it had been chosen. That is deliberate.
void CColorComboBox::choose(std::size_t row) {
  const color_code before = m_last_code;
  const color_code code = m_codes[row] == controls::kNoColor ? askForColor() : m_codes[row];
  selectOrAdd(code);
  if (changed && !changed(controls::color_of(code))) select(before);
}

color_code CColorComboBox::askForColor() {
  const dialog_guard guard;
  if (!guard.is_first() || !pick) return m_last_code;
  const auto picked = pick(OdCmEntityColor(OdCmEntityColor::kByBlock));
  return picked ? controls::code_of(*picked) : m_last_code;
}

void CColorComboBox::selectOrAdd(color_code code) {
  if (std::find(m_codes.begin(), m_codes.end(), code) == m_codes.end()) {
    m_codes.insert(m_codes.end() - 1, code);
    if (listed) listed();
  }
  select(code);
}
