#include "od/fonts/FontFolders.h"

#include <filesystem>

#include "od/base/unicode.h"

std::optional<std::string> FontFolders::find(std::u16string_view fileName) const {
  std::u16string key = odLowerAscii(fileName);
  for (const std::string& folder : m_folders) {
    const Listing& files = listing(folder);
    auto found = files.find(key);
    if (found != files.end()) return found->second;
  }
  return std::nullopt;
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
