#pragma once

#include "micui/frame.h"

class ExMTextEditable;

/// The one gadget of a single-line session: a frame named "text" around its lines. It has no colours and
/// draws nothing; it is what a press has to hit, and what the background fills. In a text without lines it is
/// its origin alone.
class line_frame {
 public:
  /// Puts the frame around the lines of `text`, which has to outlive it.
  void open(const ExMTextEditable& text);
  bool is_open() const { return !m_frame.isNull(); }
  /// The frame in text coordinates, around the lines as they now are. Only while open.
  micui::frame& refreshed() const;

 private:
  const ExMTextEditable* m_text = nullptr;
  OdSmartPtr<micui::frame> m_frame;
};
