#pragma once

#include <string>

#include "od/field/OdDbField.h"
#include "ui/field_dialog/field_kinds.h"

class OdDbDatabase;

/// The choice of a field, as a dialog: a kind, a format, perhaps an argument, and the code that follows from
/// them. The code can be written by hand too.
class CFieldDlg {
 public:
  /// Begins with the first kind.
  explicit CFieldDlg(OdDbDatabase& database) : m_database(database) { choose_kind(0); }
  /// Begins with a field that is there.
  CFieldDlg(OdDbDatabase& database, const OdDbField& field);

  std::size_t kind() const { return m_kind; }  ///< place in `fields::kinds`
  const fields::kind_row& kind_row() const { return fields::kinds()[m_kind]; }
  std::size_t format() const { return m_format; }  ///< place in the formats of the kind
  /// Name, handle of the object in hexadecimal digits, or expression.
  const std::u16string& argument() const { return m_argument; }
  std::size_t property() const { return m_property; }  ///< place in `fields::properties`

  /// Each choice makes the code anew.
  void choose_kind(std::size_t kind);
  void choose_format(std::size_t format);
  void choose_property(std::size_t property);
  void set_argument(std::u16string argument);

  const std::u16string& code() const { return m_code; }  ///< without markers
  /// Takes a code that was written by hand; the other choices stay as they are.
  void set_code(std::u16string code) { m_code = std::move(code); }
  /// What the field would show now.
  std::u16string preview() const;
  /// Whether there is a code at all.
  bool can_finish() const;
  /// The field, evaluated.
  OdDbFieldPtr result() const;

 private:
  void make_code();

  OdDbDatabase& m_database;
  std::size_t m_kind = 0;
  std::size_t m_format = 0;
  std::size_t m_property = 0;
  std::u16string m_argument;
  std::u16string m_code;
};
