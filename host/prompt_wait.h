#pragma once

#include <vector>

#include "od/ge/OdGePoint3d.h"

class HostDocument;
class HostEdInputTracker;
class OdGiDrawable;

/// The time that a prompt waits: keeps the prompt's tracker among the filters and its drawables above the
/// drawing.
class HostPromptWait {
 public:
  /// Trackers are asked behind the filters of a higher level, an editing session's among them.
  static constexpr int kTrackerLevel = 1;

  /// `tracker` may be null; then nothing is shown.
  HostPromptWait(HostDocument& document, HostEdInputTracker* tracker);
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
  std::vector<OdGiDrawable*> m_shown;
};
