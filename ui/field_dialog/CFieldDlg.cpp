#include "ui/field_dialog/CFieldDlg.h"

#include <charconv>

#include "host/field_service.h"
#include "od/evaluate/field_code.h"
#include "od/field/field_markers.h"

namespace {

std::uint64_t handle_of(std::u16string_view digits) {
  const std::string text = odToUtf8(digits);
  std::uint64_t handle = 0;
  std::from_chars(text.data(), text.data() + text.size(), handle, 16);
  return handle;
}

/// Whether a code is that of a kind without an argument, whatever its format.
bool is_of(const fields::kind_row& row, std::u16string_view code) {
  return row.argument == fields::argument::none && code.starts_with(row.code) &&
         (code.size() == row.code.size() || code[row.code.size()] == u' ');
}

}  // namespace

CFieldDlg::CFieldDlg(OdDbDatabase& database, const OdDbField& field) : CFieldDlg(database) {
  const OdString marker = field.getFieldCode(OdDbField::kAddMarkers);
  const std::u16string_view code = odWithoutMarkers(marker.str());
  const std::u16string_view format = odReadFieldCode(code).format;
  const auto kinds = fields::kinds();
  for (std::size_t kind = 0; kind < kinds.size(); ++kind) {
    if (!is_of(kinds[kind], code)) continue;
    m_kind = kind;
    for (std::size_t at = 0; at < kinds[kind].formats.size(); ++at)
      if (kinds[kind].formats[at].format == format) m_format = at;
  }
  m_code = code;
}

void CFieldDlg::choose_kind(std::size_t kind) {
  m_kind = kind;
  m_format = 0;
  make_code();
}

void CFieldDlg::choose_format(std::size_t format) {
  m_format = format;
  make_code();
}

void CFieldDlg::choose_property(std::size_t property) {
  m_property = property;
  make_code();
}

void CFieldDlg::set_argument(std::u16string argument) {
  m_argument = std::move(argument);
  make_code();
}

void CFieldDlg::make_code() {
  m_code = kind_row().code;
  switch (kind_row().argument) {
    case fields::argument::none:
      break;
    case fields::argument::object:
      m_code += u"Object(" + odFieldReference(kOdObjectReference, handle_of(m_argument)) + u").";
      m_code += fields::properties()[m_property];
      break;
    case fields::argument::name:
    case fields::argument::expression:
      m_code += m_argument;
      break;
  }
  const std::u16string_view format = kind_row().formats[m_format].format;
  if (!format.empty()) m_code.append(u" \\f \"").append(format).append(u"\"");
}

std::u16string CFieldDlg::preview() const {
  return can_finish() ? result()->getFieldCode(OdDbField::kEvaluatedText).str() : std::u16string();
}

bool CFieldDlg::can_finish() const { return m_code.find_first_not_of(u' ') != m_code.npos; }

OdDbFieldPtr CFieldDlg::result() const { return host::evaluated_field(m_code, m_database); }
