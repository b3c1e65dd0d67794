#include "editor/redraw.h"

#include <utility>

#include "host/exports.h"
#include "host/view_overlay.h"

void redraw_request::flush() {
  const unsigned bits = std::exchange(m_bits, 0U);
  if (bits & kGadgets) m_overlay.invalidate(m_gadget_layer);
  if (bits & kText) m_overlay.invalidate(m_text_layer);
  host::update_now();
}
