#pragma once

#include <string>
#include <vector>

#include "desk/cli/mtext_command.h"
#include "mtext/geom_multitext.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbMText.h"

/// What text looks like where no code says otherwise: the height and the font that were told.
mtext::format::string baseFormat(const MTextOptions& options);

/// A new drawing with one empty text of the width, height and font that were told; without a font, that of
/// the style "Standard". It measures with the fonts of this machine.
class TextFrame {
 public:
  explicit TextFrame(const MTextOptions& options);

  mtext::geom_multitext layOut(const std::u16string& text) const;
  /// Draws the text into `picture`, whose suffix tells the form; messages call the text `name`. Throws
  /// FileError.
  void draw(const std::u16string& text, const std::string& name, const std::filesystem::path& picture);

  /// The fonts that were asked for so far and that this machine lacks, a sentence each.
  std::vector<std::u16string> lackingFonts() const;

 private:
  OdDbDatabasePtr m_drawing;
  OdDbMTextPtr m_text;
};
