#pragma once

#include <map>
#include <string>
#include <vector>

#include "mtext/string_size_finder.h"

/// Measures each text in each format once, and gives the same numbers again when it is asked again. For one
/// piece of work that measures the same few texts often, as the labels of a list.
class remembering_finder : public mtext::string_size_finder {
 public:
  /// `measuring` has to outlive it.
  explicit remembering_finder(const mtext::string_size_finder& measuring) : m_measuring(measuring) {}

  mtext::font_metrics font_metrics(const mtext::format::string& format) const override {
    return m_measuring.font_metrics(format);
  }
  mtext::string_metrics measure(const mtext::format::string& format, std::u16string_view text) const override;

 private:
  struct measured {
    mtext::format::string format;
    mtext::string_metrics size;
  };
  const mtext::string_size_finder& m_measuring;
  mutable std::map<std::u16string, std::vector<measured>, std::less<>> m_known;
};
