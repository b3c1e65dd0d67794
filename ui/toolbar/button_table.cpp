#include "ui/toolbar/button_table.h"

#include <algorithm>
#include <stdexcept>

#include "editor/letter_toggle.h"
#include "editor/smart_edit.h"
#include "ui/toolbar/CMTextEdit.h"
#include "ui/toolbar/attachment_menu.h"
#include "ui/toolbar/columns_menu.h"
#include "ui/toolbar/control_table.h"
#include "ui/toolbar/insert_field.h"
#include "ui/toolbar/insert_symbol.h"
#include "ui/toolbar/numbering_menu.h"
#include "ui/toolbar/search_texts.h"
#include "ui/toolbar/spacing_menu.h"

namespace toolbar {
namespace {

using change = std::optional<text_change>;

template <editing::letter_toggle which>
change toggle(CMTextEdit& bar) {
  return text_change{[&text = bar.editable()] { editing::toggle(text, which); }};
}

template <std::uint32_t alignment>
change align(CMTextEdit& bar) {
  return text_change{[&text = bar.editable()] { text.applyParagraph({.alignment = alignment}); }};
}

/// A plain operation of the text.
template <void (ExMTextEditable::*operation)()>
change run(CMTextEdit& bar) {
  return text_change{[&text = bar.editable()] { (text.*operation)(); }};
}

template <bool upper>
change change_case(CMTextEdit& bar) {
  return text_change{[&text = bar.editable()] { text.changeCase(upper); }};
}

// These three close their edits themselves, or end them all.

change undo(CMTextEdit& bar) {
  bar.session().undoStep();
  return {};
}
change redo(CMTextEdit& bar) {
  bar.session().redoStep();
  return {};
}
change accept(CMTextEdit& bar) {
  bar.session().accept();
  return {};
}

using editing::letter_toggle;

constexpr button_action kActions[] = {
    {1, accept},
    {2, search_texts},
    {1001, toggle<letter_toggle::bold>},
    {1002, toggle<letter_toggle::italic>},
    {1003, toggle<letter_toggle::underline>},
    {1004, toggle<letter_toggle::overline>},
    {1005, align<1>},
    {1006, align<2>},
    {1007, align<3>},
    {1010, align<4>},
    {1011, align<5>},
    {1012, undo},
    {1013, redo},
    {1014, run<&ExMTextEditable::stackSelection>},
    {1032, change_case<true>},
    {1039, change_case<false>},
    {1047, ask_symbol},
    {1048, ask_spacing},
    {1049, ask_numbering},
    {1050, ask_field},
    {1051, run<&ExMTextEditable::superscript>},
    {1052, run<&ExMTextEditable::subscript>},
    {1053, ask_columns},
    {1054, ask_attachment},
};

}  // namespace

std::span<const button_action> button_table() { return kActions; }

const button_action& action_of(int id) {
  const auto found = std::find_if(std::begin(kActions), std::end(kActions),
                                  [id](const button_action& each) { return each.id == id; });
  if (found == std::end(kActions)) throw std::invalid_argument("toolbar::action_of: no such button");
  return *found;
}

}  // namespace toolbar
