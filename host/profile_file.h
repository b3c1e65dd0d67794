#pragma once

#include <filesystem>

#include "host/profile.h"

/// A profile that lives in a file of sections and `name = text` lines, in UTF-8. It is read once and written
/// whole at each change, by way of a temporary file beside it.
class HostProfileFile : public HostMemoryProfile {
 public:
  /// A file that is not there is an empty profile. Throws `std::runtime_error`, naming the file, when it
  /// cannot be read.
  explicit HostProfileFile(std::filesystem::path file);
  /// Throws `std::runtime_error`, naming the file, when it cannot be written.
  void setText(std::u16string_view section, std::u16string_view name, std::u16string_view text) override;

 private:
  void read();
  void write() const;

  std::filesystem::path m_file;
};
