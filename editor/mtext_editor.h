#pragma once

class HostWindow;

/// Whoever watches a text that is being edited: the session and the toolbar.
class MTextEditor {
 public:
  virtual ~MTextEditor() = default;
  /// The selection or the text changed.
  virtual void onChanged() = 0;
  /// Owner of the clipboard while it is used; null where there is none.
  virtual HostWindow* window() = 0;
};
