#pragma once

#include <string>
#include <string_view>

/// A page of the guides, and a place in it.
struct HelpPage {
  std::string name;    ///< of the file in the folder of guides, without its extension
  std::string anchor;  ///< of a heading; empty for the beginning
};

/// The page for a key of the help; for an empty key, and for one that no page has, that from which all others
/// are reached.
HelpPage helpPage(std::u16string_view key);
