#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

/// Number of the plain text format.
inline constexpr unsigned CF_UNICODETEXT = 13;

/// Names for `registerFormat` of two formats that other programs know too. The bytes of RTF are one unit
/// each.
inline constexpr std::u16string_view kHtmlFormat = u"HTML Format";
inline constexpr std::u16string_view kRtfFormat = u"Rich Text Format";

/// The clipboard, as texts by format. The end mark that platforms demand is added and taken off by who talks
/// to the platform; texts here have none.
class HostClipboard {
 public:
  virtual ~HostClipboard() = default;
  /// The number of a private format, the same for the same name; 0 when it cannot be had.
  virtual unsigned registerFormat(std::u16string_view name) = 0;
  /// Takes the clipboard for writing and throws its contents away. False: another has it.
  virtual bool empty() = 0;
  /// Puts one format beside those that are there.
  virtual bool set(unsigned format, std::u16string_view text) = 0;
  virtual bool has(unsigned format) const = 0;
  /// Nothing when the format is not there or cannot be had.
  virtual std::optional<std::u16string> get(unsigned format) const = 0;
};

/// A clipboard in memory.
class HostMemoryClipboard : public HostClipboard {
 public:
  unsigned registerFormat(std::u16string_view name) override;
  bool empty() override;
  bool set(unsigned format, std::u16string_view text) override;
  bool has(unsigned format) const override;
  std::optional<std::u16string> get(unsigned format) const override;

 private:
  std::map<std::u16string, unsigned, std::less<>> m_formats;
  std::map<unsigned, std::u16string> m_texts;
};
