#pragma once

#include <memory>
#include <string>
#include <vector>

#include "od/fonts/OdFontRequest.h"
#include "od/fonts/OdFontSubstitution.h"

class OdFont;

/// Where a library looks for fonts.
struct OdFontPlaces {
  /// Folders with shape fonts and typeface files, searched in order and before all others.
  std::vector<std::string> searchPaths{};
  /// Folders with the stroke fonts that stand in for missing shape fonts.
  std::vector<std::string> strokeFontPaths{"/usr/share/librecad/fonts", "/usr/share/hershey-fonts"};
};

/// The fonts of an application or a drawing. It finds, loads and keeps them, and notes what it had to
/// substitute. Fonts are shared with those who hold them and may outlive the library.
///
/// Typefaces are found by family name among the installed fonts, never by the machine's matching rules, so
/// that the same fonts give the same text everywhere: a well-known name that is not installed is taken
/// through a table of its own, and last comes Liberation Sans. Shape fonts are found by file name without
/// case in the search paths; a missing one is replaced by a stroke font.
class OdFontLibrary {
 public:
  explicit OdFontLibrary(OdFontPlaces places = {});
  ~OdFontLibrary();
  OdFontLibrary(const OdFontLibrary&) = delete;
  OdFontLibrary& operator=(const OdFontLibrary&) = delete;

  /// Adds a folder at the end of the search paths; fonts found before stay what they are.
  void addSearchPath(const std::string& folder);

  /// The font for a request; never null. Throws `OdError(eFileNotFound)` when not even a last resort is
  /// installed.
  std::shared_ptr<const OdFont> find(const OdFontRequest& request);

  /// What was substituted so far, each once, in the order of discovery. Missing characters appear when they
  /// are first drawn or measured, once a font.
  const std::vector<OdFontSubstitution>& substitutions() const;

 private:
  struct State;
  std::unique_ptr<State> m_state;
};
