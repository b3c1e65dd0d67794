#pragma once

#include <optional>
#include <string>

#include "od/ge/OdGePoint3d.h"

/// Text that an input method composes: it is shown, and belongs to nothing before it is committed.
struct HostComposition {
  std::u16string text;    ///< empty: nothing is composed
  std::size_t caret = 0;  ///< in UTF-16 units of `text`
};

/// Both ends of a caret, in world coordinates.
struct HostCaret {
  OdGePoint3d top;
  OdGePoint3d bottom;
};

/// Shows what is being composed where it would be typed. What is committed comes as characters, like all
/// typing.
class HostComposer {
 public:
  virtual ~HostComposer() = default;
  /// Shows this in place of what was shown before.
  virtual void compose(const HostComposition& composition) = 0;
  /// Where the caret is seen: an input method puts its list of candidates there.
  virtual std::optional<HostCaret> caret() const = 0;
};
