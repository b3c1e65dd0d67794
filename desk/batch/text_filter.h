#pragma once

#include <optional>
#include <string>
#include <vector>

#include "desk/texts/drawing_texts.h"
#include "host/selection_set.h"
#include "host/text_pattern.h"

class OdDbDatabase;

/// Which texts of a drawing are meant, in the words of the command line. What is left empty leaves nothing
/// out.
struct TextFilterOptions {
  std::vector<std::string> layers = {};  ///< names, in which * and ? stand for others
  std::vector<std::string> styles = {};  ///< the same
  std::vector<TextKind> kinds = {};
  std::string match = {};   ///< regular expression that is to be found in the text without its codes
  bool all_blocks = false;  ///< also those outside the current space: other layouts, definitions of blocks
};

/// Tells the texts that are meant from the others.
class TextFilter {
 public:
  /// Throws std::invalid_argument with a sentence for the user when `match` is no regular expression.
  explicit TextFilter(const TextFilterOptions& options);

  /// The texts of a drawing that are meant, in file order. Texts of blocks that only picture another entity,
  /// such as a dimension, are none. Throws std::invalid_argument when the expression takes too long on a
  /// text.
  HostSelectionSet selected(const OdDbDatabase& database) const;

 private:
  bool takes(const DrawingText& text) const;

  std::vector<std::u16string> m_layers;
  std::vector<std::u16string> m_styles;
  std::vector<TextKind> m_kinds;
  std::optional<HostTextPattern> m_match;
  bool m_all_blocks;
};
