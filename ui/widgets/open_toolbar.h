#pragma once

#include <memory>

class smart_edit;

/// A toolbar that floats over the view for as long as this lives.
class SessionToolbar {
 public:
  virtual ~SessionToolbar() = default;
};

/// The toolbar of a session that has begun, which has to outlive it. Null where there are no windows, and for
/// a single-line text, which has none.
std::unique_ptr<SessionToolbar> open_toolbar(smart_edit& session);
