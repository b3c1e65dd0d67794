#pragma once

#include <exception>
#include <string>

#include "od/base/export.h"

namespace mtext {

/// An internal condition did not hold: a fault of ours, or objects that do not belong together.
class SCRIBE_EXPORT ensure_error : public std::exception {
 public:
  /// The text is "ensure '<condition>' fails: <message>".
  ensure_error(const std::string& condition, const std::string& message)
      : m_text("ensure '" + condition + "' fails: " + message) {}

  const char* what() const noexcept override { return m_text.c_str(); }

 private:
  std::string m_text;
};

/// Throws `ensure_error` unless `holds`. `condition` is the condition as it would be written in code.
inline void ensure(bool holds, const char* condition, const char* message) {
  if (!holds) throw ensure_error(condition, message);
}

}  // namespace mtext
