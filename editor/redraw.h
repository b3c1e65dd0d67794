#pragma once

class HostViewOverlay;
class OdGiDrawable;

/// What a session wants painted anew. Operations set bits and flush; the host paints.
class redraw_request {
 public:
  enum layer : unsigned { kGadgets = 1, kText = 2 };

  /// All have to outlive the request.
  redraw_request(HostViewOverlay& overlay, OdGiDrawable& gadget_layer, OdGiDrawable& text_layer)
      : m_overlay(overlay), m_gadget_layer(gadget_layer), m_text_layer(text_layer) {}

  void set(unsigned bits) { m_bits |= bits; }
  unsigned pending() const { return m_bits; }
  /// Clears each bit that is set and invalidates its layer, then asks the host to update.
  void flush();

 private:
  HostViewOverlay& m_overlay;
  OdGiDrawable& m_gadget_layer;
  OdGiDrawable& m_text_layer;
  unsigned m_bits = kGadgets | kText;
};
