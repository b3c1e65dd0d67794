#include "tests/editor/random_session.h"

#include <set>

#include "od/gi/OdGiRecorder.h"
#include "od/gi/OdGsView.h"

namespace {

/// Longer than this no text grows: what lies behind the caret goes.
constexpr std::size_t kLongest = 600;

mtext::format::string_partial color(std::uint16_t index) {
  mtext::format::string_partial change;
  change.color = mtext::format::text_color{.kind = 0, .index = index};
  return change;
}

mtext::format::paragraph_partial alignment(std::uint32_t number) {
  mtext::format::paragraph_partial change;
  change.alignment = number;
  return change;
}

}  // namespace

random_session::random_session(unsigned seed)
    : m_random(seed), m_subject("one two¶1.→three¶2.→four|", wrapping(60)) {}

HostWindowMessage random_session::at_random_point(unsigned number) {
  const double x = static_cast<double>(m_random.below(640)) / 10 - 1;
  const double y = 1 - static_cast<double>(m_random.below(400)) / 10;
  return {
      .number = number, .point = {x, y, 0}, .shift = m_random.below(4) == 0, .ctrl = m_random.below(4) == 0};
}

void random_session::mouse() {
  static constexpr unsigned kNumbers[] = {WM_LBUTTONDOWN, WM_LBUTTONDOWN, WM_MOUSEMOVE,  WM_MOUSEMOVE,
                                          WM_LBUTTONUP,   WM_LBUTTONUP,   WM_SETCURSOR,  WM_LBUTTONDBLCLK,
                                          WM_RBUTTONDOWN, WM_RBUTTONUP,   WM_MOUSEWHEEL, WM_KEYUP};
  const unsigned number = kNumbers[m_random.below(std::size(kNumbers))];
  // The menu offers its rows from 1001 on; what cannot be chosen is refused by the window.
  if (number == WM_RBUTTONUP)
    m_subject.application().window().choose(1001 + static_cast<int>(m_random.below(24)));
  m_subject.send(at_random_point(number));
}

void random_session::toolbar() {
  ExMTextEditable& text = m_subject.text();
  m_subject.session().pushUndoStep(kUndoToolbar);
  switch (m_random.below(8)) {
    case 0:
      text.applyFormat(color(static_cast<std::uint16_t>(m_random.below(7))));
      break;
    case 1:
      text.applyParagraph(alignment(1 + static_cast<std::uint32_t>(m_random.below(5))));
      break;
    case 2:
      text.setNumbering(static_cast<int>(m_random.below(5)) - 1);
      break;
    case 3:
      text.stackSelection();
      break;
    case 4:
      text.superscript();
      break;
    case 5:
      text.setAttachment(static_cast<int>(m_random.below(9)));
      break;
    case 6:
      text.setSize(20.0 + static_cast<double>(m_random.below(60)), 0);
      break;
    default:
      text.setTextHeight(2.0 + static_cast<double>(m_random.below(3)) / 2, /*keep_runs=*/false);
  }
  text.endOfEdit(/*relayout=*/true);
}

void random_session::paint() {
  const OdGsView& view = m_subject.application().document().view().gsView();
  OdGiRecorder recorder;
  for (const auto& layer : m_subject.application().document().view().overlay().layers())
    recorder.record(*layer.drawable, OdGiDefaultContext(), &view);
}

void random_session::event() {
  const std::size_t kind = m_random.below(100);
  if (kind < 70) {
    const std::string key = m_random.key();
    // A stack is written without escapes, and loses a backslash when it is read.
    m_subject.keys(key == "\\" ? "a" : key);
  } else if (kind < 95) {
    mouse();
  } else {
    toolbar();
  }
  if (text().text().parts.size() > kLongest) m_subject.keys("Shift+PageDown Delete");
  if (m_random.below(1000) == 0) paint();
  m_subject.ended();
}

void random_session::undo_all() {
  while (!undo().is_empty()) m_subject.session().undoStep();
}

std::size_t stored_parts(const undo_stack& steps) {
  std::set<const stored_text::piece*> seen;
  std::size_t count = 0;
  for (const auto* stack : {&steps.undo_steps(), &steps.redo_steps()})
    for (const UndoSnapshot& step : *stack)
      for (const auto& piece : step.geometry.pieces())
        if (seen.insert(piece.get()).second) count += piece->parts.size();
  return count;
}
