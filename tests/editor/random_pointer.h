#pragma once

#include <random>

#include "tests/editor/edited_drawing.h"

/// A hand that does not know what it does with the mouse on the text and the gadgets of a multi-line session:
/// presses, drags, releases anywhere, double clicks, and wheel turns in between; now and then the view
/// paints, a key comes, or an undo. The same for the same seed.
class random_pointer {
 public:
  explicit random_pointer(unsigned seed);

  /// One event.
  void event();
  /// Undoes all there is.
  void undo_all();

  smart_edit& session() { return *m_drawing.session; }
  const ExMTextEditable& text() const { return m_drawing.session->editable(); }

 private:
  std::size_t below(std::size_t limit) { return m_random() % limit; }
  double between(double low, double high);
  /// In text coordinates: near the text, or within one of the gadgets.
  OdGePoint2d somewhere();
  OdGePoint2d in_gadget();
  void mouse(unsigned number);
  void zoom();
  void paint();
  void key();

  std::mt19937 m_random;
  edited_drawing m_drawing;
};
