#pragma once

#include <optional>

#include "editor/stack_half.h"
#include "mtext/format_paragraph.h"
#include "mtext/mark.h"

class ExMTextEditable;

/// What a toolbar has to know of the selected text beside its formats.
namespace toolbar {

/// Whether any selection holds text.
bool holds_text(const ExMTextEditable& text);

/// Stacks in the selections.
struct stack_facts {
  bool can_toggle = false;   ///< a stack stands there, or text that can become one
  bool all_stacked = false;  ///< nothing else stands there
  bool one_run = false;      ///< each is a run of text in one line without stacks, or a single stack
  editing::stack_half half = editing::stack_half::none;  ///< what all of them are, text raised or lowered

  friend bool operator==(const stack_facts&, const stack_facts&) = default;  ///< field by field
};
stack_facts stacks_of(const ExMTextEditable& text);

/// Lists among the paragraphs that the selections touch.
struct list_facts {
  bool any = false;                                ///< one of them is a list item
  bool all = false;                                ///< all are
  std::optional<mtext::marks::index> common = {};  ///< the innermost level, if all are items of one kind

  friend bool operator==(const list_facts&, const list_facts&) = default;  ///< field by field
};
list_facts lists_of(const ExMTextEditable& text);

}  // namespace toolbar
