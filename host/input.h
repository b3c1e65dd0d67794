#pragma once

#include <string>
#include <variant>

#include "od/ge/OdGePoint3d.h"

/// Numbers of the window messages.
enum HostMessageNumber : unsigned {
  WM_SETCURSOR = 32,
  WM_KEYDOWN = 256,
  WM_KEYUP = 257,
  WM_CHAR = 258,
  WM_MOUSEMOVE = 512,
  WM_LBUTTONDOWN = 513,
  WM_LBUTTONUP = 514,
  WM_LBUTTONDBLCLK = 515,
  WM_RBUTTONDOWN = 516,
  WM_RBUTTONUP = 517,
  WM_MBUTTONDOWN = 519,
  WM_MBUTTONUP = 520,
  WM_MBUTTONDBLCLK = 521,
  WM_MOUSEWHEEL = 522,
};

/// Pixel in the drawing view: x to the right and y downwards from the top left corner.
struct HostPixel {
  int x = 0;
  int y = 0;
};

/// One event of the drawing view's window.
struct HostWindowMessage {
  unsigned number = 0;  ///< a `HostMessageNumber`
  unsigned code = 0;    ///< key messages: a `HostKeyCode`; WM_CHAR: a UTF-16 unit
  int repeat = 1;       ///< how often a held key has come
  int wheel = 0;        ///< WM_MOUSEWHEEL: notches, positive away from the user
  HostPixel pixel{};    ///< the cursor
  OdGePoint3d point{};  ///< the cursor in world coordinates
  bool shift = false;
  bool ctrl = false;
  bool alt = false;
};

/// A whole line of the command line, without its end.
struct HostTypedLine {
  std::u16string text;
};

/// Esc at the command line.
struct HostCancel {};

/// The source has nothing more to give: a script at its end, a window that closes.
struct HostEndOfInput {};

/// What a prompt waits for.
using HostInput = std::variant<HostTypedLine, HostWindowMessage, HostCancel, HostEndOfInput>;

/// Where input comes from. The desk's source runs the event loop, a script's reads its next line.
class HostInputSource {
 public:
  virtual ~HostInputSource() = default;
  /// Waits for the next input. After `HostEndOfInput` it gives nothing else.
  virtual HostInput next() = 0;
};
