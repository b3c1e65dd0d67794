#pragma once

class OdFontLibrary;

/// Where text styles find their fonts. A database is one.
class OdGiFontContext {
 public:
  virtual ~OdGiFontContext() = default;
  /// The fonts of this context; lives at least as long as the context.
  virtual OdFontLibrary& fontLibrary() const = 0;
};
