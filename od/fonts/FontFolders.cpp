#include "od/fonts/FontFolders.h"

#include <filesystem>
#include <map>
#include <set>

#include "od/base/unicode.h"
#include "od/fonts/font_file.h"

std::optional<std::string> FontFolders::find(std::u16string_view fileName) const {
  std::u16string key = odLowerAscii(fileName);
  for (const std::string& folder : m_folders) {
    const Listing& files = listing(folder);
    auto found = files.find(key);
    if (found != files.end()) return found->second;
  }
  return std::nullopt;
}

std::vector<std::string> FontFolders::withExtension(std::u16string_view extension) const {
  std::vector<std::string> paths;
  std::set<std::u16string> known;
  for (const std::string& folder : m_folders) {
    const Listing& files = listing(folder);
    for (const auto& [name, path] : std::map(files.begin(), files.end())) {
      if (odExtensionOf(name) == extension && known.insert(name).second) paths.push_back(path);
    }
  }
  return paths;
}

const FontFolders::Listing& FontFolders::listing(const std::string& folder) const {
  auto [place, isNew] = m_listings.try_emplace(folder);
  if (!isNew) return place->second;
  std::error_code failure;
  for (std::filesystem::directory_iterator at(folder, failure), end; !failure && at != end;
       at.increment(failure)) {
    std::string path = at->path().string();
    std::string& known = place->second[odLowerAscii(odToUtf16(at->path().filename().string()))];
    // Of names that differ in case alone the first in the order of bytes is taken, whatever order the disk
    // has.
    if (known.empty() || path < known) known = path;
  }
  return place->second;
}
