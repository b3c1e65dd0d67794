#pragma once

#include <functional>

#include "od/gi/OdGiDrawable.h"

class HostViewOverlay;

/// One layer of a session above the drawing. What it draws is the session's.
class gadget_draw : public OdGiDrawableImpl<OdGiDrawable> {
 public:
  using world_part = std::function<void(OdGiWorldDraw&)>;
  using view_part = std::function<void(OdGiViewportDraw&)>;

  gadget_draw(world_part world, view_part view) : m_world(std::move(world)), m_view(std::move(view)) {}

  unsigned setAttributes(OdGiDrawableTraits&) override { return 0; }
  bool worldDraw(OdGiWorldDraw& draw) override;
  void viewportDraw(OdGiViewportDraw& draw) override;
  /// The session has ended: whoever still holds the layer draws nothing with it.
  void detach();

 private:
  world_part m_world;
  view_part m_view;
};

/// The three layers of a session: background and text, then caret, then gadgets with the highlights. They
/// stand in the view's overlay for as long as this lives.
class session_layers {
 public:
  /// What the session draws on each.
  struct drawing {
    gadget_draw::world_part text;
    gadget_draw::view_part caret;
    gadget_draw::view_part gadgets;
  };

  session_layers(HostViewOverlay& overlay, drawing what);
  ~session_layers();
  session_layers(const session_layers&) = delete;
  session_layers& operator=(const session_layers&) = delete;

  gadget_draw& text() const { return *m_text; }
  gadget_draw& caret() const { return *m_caret; }
  gadget_draw& gadgets() const { return *m_gadgets; }

 private:
  HostViewOverlay& m_overlay;
  OdSmartPtr<gadget_draw> m_text;
  OdSmartPtr<gadget_draw> m_caret;
  OdSmartPtr<gadget_draw> m_gadgets;
};
