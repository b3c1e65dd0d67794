#pragma once

#include <map>

#include "host/clipboard.h"

class QMimeData;

/// The desktop's clipboard. Plain text, HTML and RTF are those of every program; a private format travels as
/// UTF-16 (little-endian) under a MIME type made of its name. What was put in can be had as long as this
/// program runs, and afterwards where the desktop keeps it.
class QtClipboard : public HostClipboard {
 public:
  unsigned registerFormat(std::u16string_view name) override;
  bool empty() override;
  bool set(unsigned format, std::u16string_view text) override;
  bool has(unsigned format) const override;
  std::optional<std::u16string> get(unsigned format) const override;

 private:
  void putInto(QMimeData& data, unsigned format, const std::u16string& text) const;

  std::map<unsigned, std::u16string> m_names;  ///< of the registered formats
  std::map<unsigned, std::u16string> m_texts;  ///< put in since `empty`
};
