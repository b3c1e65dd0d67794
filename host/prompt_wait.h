#pragma once

#include <vector>

#include "host/rubber_line.h"

class HostDocument;
class HostEdInputTracker;
struct HostPromptRequest;

/// The time that a prompt waits: keeps the prompt's tracker among the filters, and its drawables and the
/// rubber line above the drawing.
class HostPromptWait {
 public:
  /// Trackers are asked behind the filters of a higher level, an editing session's among them.
  static constexpr int kTrackerLevel = 1;

  HostPromptWait(HostDocument& document, const HostPromptRequest& request);
  ~HostPromptWait();
  HostPromptWait(const HostPromptWait&) = delete;
  HostPromptWait& operator=(const HostPromptWait&) = delete;

  /// Gives the moved point to the tracker and shows what it makes of it.
  void track(const OdGePoint3d& point);

 private:
  void show();
  void hide();

  HostDocument& m_document;
  HostEdInputTracker* m_tracker;
  OdSmartPtr<HostRubberLine> m_line;  ///< null where none is asked for
  bool m_has_cursor = false;
  std::vector<OdGiDrawable*> m_shown;
};
