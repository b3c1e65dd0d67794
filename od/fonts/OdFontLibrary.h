#pragma once

#include <memory>
#include <string>
#include <vector>

#include "od/fonts/OdFontRequest.h"
#include "od/fonts/OdFontSubstitution.h"
#include "od/fonts/OdInstalledTypeface.h"

class OdFont;

/// Where a library looks for fonts.
struct OdFontPlaces {
  /// Folders with shape fonts and typeface files, searched in order and before all others.
  std::vector<std::string> searchPaths{};
  /// Folders in which shape fonts are looked for, behind the search paths, and nothing else is: they may be
  /// any folders of the user's.
  std::vector<std::string> shapeFontPaths{};
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

  /// Adds a folder at the end of those for shape fonts.
  void addShapeFontFolder(const std::string& folder);
  /// Where it looks now: a library made of this finds the same fonts.
  OdFontPlaces places() const;

  /// Every installed typeface, by name.
  std::vector<OdInstalledTypeface> installedTypefaces() const;
  /// File names of the shape fonts for letters that lie in the folders, by folder and name. Big fonts and
  /// what stands in for a shape font are not among them.
  std::vector<std::u16string> shapeFonts() const;
  /// Whether there is a typeface of that family or full name, and nothing has to stand in for it.
  bool hasTypeface(std::u16string_view name) const;
  /// The same for the file of a shape font, or two with a comma between.
  bool hasShapeFont(std::u16string_view name) const;

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
