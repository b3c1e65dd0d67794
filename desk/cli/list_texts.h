#pragma once

#include <filesystem>
#include <string>
#include <vector>

class OdDbDatabase;

/// One text of a drawing.
struct ListedText {
  std::string handle;   ///< hexadecimal
  std::u16string kind;  ///< "MTEXT", "TEXT", "ATTDEF" or "ATTRIB"
  std::u16string layer;
  std::u16string block;  ///< name of the block that holds it
  std::u16string text;   ///< without format codes; lines end with a line feed
};

/// All texts of all blocks, in file order.
std::vector<ListedText> textsOf(const OdDbDatabase& database);

/// `scribe text`: prints them, a line each with tabs between and line ends as \n, or as JSON. An `ExitCode`;
/// throws OdError.
int listTexts(const std::filesystem::path& drawing, bool json);
