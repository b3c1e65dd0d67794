#include "editor/layers.h"

#include "host/view_overlay.h"

namespace {

constexpr int kOrder = 4;
constexpr int kTextPriority = 512;
constexpr int kGadgetPriority = 768;

}  // namespace

bool gadget_draw::worldDraw(OdGiWorldDraw& draw) {
  if (m_world) m_world(draw);
  return !m_view;
}

void gadget_draw::viewportDraw(OdGiViewportDraw& draw) {
  if (m_view) m_view(draw);
}

void gadget_draw::detach() {
  m_world = nullptr;
  m_view = nullptr;
}

session_layers::session_layers(HostViewOverlay& overlay, drawing what)
    : m_overlay(overlay),
      m_text(odNew<gadget_draw>(std::move(what.text), nullptr)),
      m_caret(odNew<gadget_draw>(nullptr, std::move(what.caret))),
      m_gadgets(odNew<gadget_draw>(nullptr, std::move(what.gadgets))) {
  m_overlay.add(*m_caret, kOrder, kGadgetPriority);
  m_overlay.add(*m_gadgets, kOrder, kGadgetPriority);
  m_overlay.add(*m_text, kOrder, kTextPriority);
}

session_layers::~session_layers() {
  for (gadget_draw* layer : {m_text.get(), m_caret.get(), m_gadgets.get()}) {
    layer->detach();
    m_overlay.remove(*layer);
  }
}
