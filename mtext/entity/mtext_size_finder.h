#pragma once

#include <map>
#include <memory>

#include "mtext/string_size_finder.h"
#include "od/base/OdSmartPtr.h"

class OdDbDatabase;
class OdGiTextStyle;

namespace mtext {

/// Measures through the drawing library, with the fonts of a database. It remembers what it measured, by
/// format and text, so that a text of many equal letters costs one look at each; the numbers are those of the
/// first look.
class mtext_size_finder : public string_size_finder {
 public:
  explicit mtext_size_finder(OdSmartPtr<OdDbDatabase> database);
  /// A copy shares the database and remembers nothing.
  mtext_size_finder(const mtext_size_finder& other);
  mtext_size_finder& operator=(const mtext_size_finder&) = delete;
  ~mtext_size_finder() override;

  mtext::font_metrics font_metrics(const format::string& format) const override;
  string_metrics measure(const format::string& format, std::u16string_view text) const override;

 private:
  struct style_key;
  struct measured_style;
  measured_style& style_of(const format::string& format) const;

  OdSmartPtr<OdDbDatabase> m_database;
  using style_map = std::map<style_key, std::unique_ptr<measured_style>>;
  mutable style_map m_styles;
  mutable style_map::value_type* m_last = nullptr;  ///< asked for last: the next one is mostly the same
};

}  // namespace mtext
