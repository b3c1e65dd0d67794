#pragma once

#include "mtext/entity/mtext_size_finder.h"
#include "od/db/OdDb.h"

namespace mtext {

/// Measures single-line text: its lines have the font's depth whatever their letters, and a slanted line
/// keeps its reference point under the height at which it is attached.
class dtext_size_finder : public mtext_size_finder {
 public:
  /// Where the line is attached across its height.
  enum attachment : std::uint32_t { attached_top = 0, attached_middle = 1, attached_bottom = 2 };

  dtext_size_finder(OdSmartPtr<OdDbDatabase> database, OdDb::TextVertMode vertical_mode,
                    std::uint32_t vertical_attachment);

  string_metrics measure(const format::string& format, std::u16string_view text) const override;

 private:
  OdDb::TextVertMode m_vertical_mode;
  std::uint32_t m_vertical_attachment;
};

/// The attachment that goes with the modes of a single-line text.
std::uint32_t vertical_attachment(OdDb::TextHorzMode horizontal, OdDb::TextVertMode vertical);

}  // namespace mtext
