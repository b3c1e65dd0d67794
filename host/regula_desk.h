#pragma once

#include "host/menu.h"
#include "host/unknown.h"

class HostWindow;

/// A reference product that may stand beside the application. Where it does, it shows the popup menu of a
/// text, so that it can put the search for the selected words into it, and the toolbar has a button for it.
class IRegulaDesk : public IKrUnknown {
 public:
  using Parent = IKrUnknown;
  static constexpr std::string_view kInterfaceName = "IRegulaDesk";

  /// Shows `menu` at the pixel `x`, `y` of the view's window and waits; gives the chosen command, 0 for none.
  /// `selected` is the text that is selected, null when there is none; `position` the place of a row to begin
  /// at, -1 for none. `owner` may be null.
  virtual int showMenu(HostWindow* owner, const char16_t* selected, const HostMenu& menu, int x, int y,
                       int position) = 0;
  /// Asks in which of its books to search for `text`, in a menu at the pixel `x`, `y` of the view's window,
  /// and searches.
  virtual void search(HostWindow* owner, const char16_t* text, int x, int y) = 0;
};
