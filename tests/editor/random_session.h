#pragma once

#include "tests/editor/edited_text.h"
#include "tests/editor/random_keys.h"

/// A session at random: keys, characters, presses, drags, double clicks and the right button at random
/// points, what the toolbar does, undo, and every now and then the view paints. The same in every run.
class random_session {
 public:
  explicit random_session(unsigned seed);

  /// One event, or one key with its character.
  void event();

  edited_text& subject() { return m_subject; }
  const ExMTextEditable& text() const { return m_subject.text(); }
  const undo_stack& undo() { return m_subject.session().undo(); }
  /// Undoes all there is.
  void undo_all();

 private:
  void mouse();
  void toolbar();
  void paint();
  HostWindowMessage at_random_point(unsigned number);

  random_keys m_random;
  edited_text m_subject;
};

/// Parts that all steps of a session hold together: what several share counts once.
std::size_t stored_parts(const undo_stack& steps);
