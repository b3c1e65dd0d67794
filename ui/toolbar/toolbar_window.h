#pragma once

#include <optional>

#include "host/input.h"
#include "od/cm/OdCmEntityColor.h"

/// The window that shows a toolbar. It holds nothing that the toolbar does not know.
class ToolbarWindow {
 public:
  virtual ~ToolbarWindow() = default;
  /// A button is to look as the toolbar says now.
  virtual void showButton(int id) = 0;
  /// Where a menu of a control opens, in pixels of the screen.
  virtual HostPixel popupPlace(int id) const = 0;
  /// The top left corner of the window, in pixels of the screen.
  virtual HostPixel place() const = 0;
  virtual void moveTo(const HostPixel& place) = 0;
  /// Asks for a colour in a dialog; nothing when it was cancelled.
  virtual std::optional<OdCmEntityColor> pickColor(const OdCmEntityColor& start) = 0;
};
