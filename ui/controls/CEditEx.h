#pragma once

#include <functional>
#include <string>
#include <string_view>

/// The text of a box that is typed into, and the rule by which it counts: Enter confirms it in any case,
/// leaving the box confirms it if it is not the text that was confirmed or shown last. No key takes a text
/// back; the old value returns when the owner shows it again.
class CEditEx {
 public:
  /// Takes a confirmed text; false puts the old one back. Confirming without it is a fault of logic and
  /// throws `std::bad_function_call`.
  std::function<bool(const std::u16string&)> confirm;
  /// Told when the program changed the text; may be empty.
  std::function<void()> shown;

  /// What stands in the box.
  const std::u16string& text() const { return m_text; }
  /// Puts a text into the box. It counts as confirmed, so that leaving the box does not confirm it again.
  void show(std::u16string_view text);
  /// The user changed the text.
  void type(std::u16string_view text) { m_text = text; }
  /// Enter was let go.
  void enter();
  /// The box lost the focus.
  void leave();

 private:
  std::u16string m_text;
  std::u16string m_last_text;
};

/// The edit inside a combo follows the same rule.
using CComboEdit = CEditEx;
