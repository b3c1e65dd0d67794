#pragma once

#include <string>

#include "tests/conformance/session_subject.h"

namespace conformance {

/// What the steps of one `gadgets` request work on: a multi-line session with its ruler and handles, in a
/// view of the pixel size that the request names.
class gadget_subject {
 public:
  explicit gadget_subject(const json& in);

  session_subject& in_session() { return m_session; }
  smart_edit& session() { return m_session.session(); }
  ExMTextEditable& text() { return m_session.text(); }
  mtext::editor& root() { return session().gadgets().root(); }
  /// Zooms the view to pixels of this length, and draws the tree once.
  void draw_at(double units_per_pixel);
  /// Where the text's origin is, seen from where it began.
  OdGeVector3d moved() { return text().origin() - m_origin; }

 private:
  void zoom(double units_per_pixel);

  session_subject m_session;
  OdGePoint3d m_origin;
};

/// One step: takes its arguments, gives its result, throws what the library throws.
using gadget_step = json (*)(gadget_subject& subject, const json& in);

/// The steps by name, a table each; null if there is none of that name.
gadget_step find_gadget_step(const std::string& name);
gadget_step find_gadget_question(const std::string& name);

}  // namespace conformance
