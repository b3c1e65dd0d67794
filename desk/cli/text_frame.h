#pragma once

#include <QSize>
#include <string>
#include <vector>

#include "desk/cli/frame_style.h"
#include "mtext/geom_multitext.h"
#include "od/db/OdDbDatabase.h"

/// A new drawing in which one text is laid out and drawn in a style; without a font, in that of the drawing's
/// style "Standard". It measures with the fonts of this machine.
class TextFrame {
 public:
  explicit TextFrame(FrameStyle style);

  mtext::geom_multitext layOut(const std::u16string& text) const;
  /// Draws the text into `picture`, whose suffix tells the form; messages call the text `name`. Throws
  /// FileError.
  void draw(const std::u16string& text, const std::string& name, const std::filesystem::path& picture,
            QSize size);

  /// The fonts that were asked for so far and that this machine lacks, a sentence each.
  std::vector<std::u16string> lackingFonts() const;

 private:
  OdDbDatabasePtr m_drawing;
  FrameStyle m_style;
};
