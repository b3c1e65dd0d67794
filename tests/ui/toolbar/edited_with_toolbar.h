#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "tests/editor/edited_text.h"
#include "ui/toolbar/CMTextEdit.h"
#include "ui/toolbar/toolbar_window.h"

/// A window that notes what it is told.
class noting_window : public ToolbarWindow {
 public:
  void showButton(int id) override { buttons.push_back(id); }
  HostPixel popupPlace(int id) const override { return {id, 40}; }
  HostPixel place() const override { return at; }
  void moveTo(const HostPixel& place) override { at = place; }
  std::optional<OdCmEntityColor> pickColor(const OdCmEntityColor&) override { return picked; }

  std::vector<int> buttons;
  HostPixel at;
  std::optional<OdCmEntityColor> picked;
};

/// A text as one draws it, in a session with a toolbar. Its fonts are a shape font and two typefaces.
class edited_with_toolbar : public edited_text {
 public:
  explicit edited_with_toolbar(std::string_view drawn, const mtext::convert_info& info = {});

  CMTextEdit& bar() { return *m_bar; }
  noting_window& window() { return m_window; }
  /// Presses a button; of the menu that it opens `command` is chosen.
  void press(int id, int command = 0);
  /// Types into a box and ends with Enter.
  static void enter(CEditEx& box, std::u16string_view text);
  bool isChecked(int id) { return bar().lookOf(id).checked; }
  bool isEnabled(int id) { return bar().lookOf(id).enabled; }
  /// The kinds of the undo steps, the oldest first.
  std::vector<int> steps();
  /// The toolbar goes, as it does at the end of a session.
  void closeBar() { m_bar.reset(); }

 private:
  noting_window m_window;
  std::unique_ptr<CMTextEdit> m_bar;
};
