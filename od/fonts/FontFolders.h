#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Finds files by name without case in a list of folders. The listing of a folder is read once.
class FontFolders {
 public:
  explicit FontFolders(std::vector<std::string> folders) : m_folders(std::move(folders)) {}

  void add(const std::string& folder) { m_folders.push_back(folder); }
  const std::vector<std::string>& folders() const { return m_folders; }

  /// The paths of all files with an extension in lower case, by folder, each folder's by name. Of files of
  /// one name the first folder's is there alone.
  std::vector<std::string> withExtension(std::u16string_view extension) const;
  /// The path of the first file of that name; nothing when there is none.
  std::optional<std::string> find(std::u16string_view fileName) const;

 private:
  using Listing = std::unordered_map<std::u16string, std::string>;  ///< lower case name to path
  const Listing& listing(const std::string& folder) const;

  std::vector<std::string> m_folders;
  mutable std::unordered_map<std::string, Listing> m_listings;
};
