#pragma once

#include <vector>

#include "editor/editable.h"

/// Selecting with the left button: press, drag and release in the text, in text coordinates.
///
/// From press to release it keeps the selections as the press left them, so that a drag over another
/// selection and back again gives that one back.
class text_mouse {
 public:
  explicit text_mouse(ExMTextEditable& text) : m_text(text) {}

  /// Shift moves the caret of the last selection; Ctrl adds a caret; otherwise the new caret is the only one.
  void press(const OdGePoint2d& at, bool shift, bool ctrl);
  /// The caret of the pressed selection follows; without a press nothing happens.
  void drag(const OdGePoint2d& at);
  void release();
  /// A key or a command changes the text or its carets: the press is over, and moves are no drag any more.
  /// What it kept would point into a text that is no longer there.
  void forget() { m_selections.clear(); }
  bool is_pressed() const { return !m_selections.empty(); }

 private:
  void move_last_caret(const OdGePoint2d& at);
  void write_back();

  ExMTextEditable& m_text;
  std::vector<mtext::marks::selection>
      m_selections;  ///< the pressed one last; empty while nothing is pressed
};
