#include <algorithm>
#include <utility>

#include "editor/letter_toggle.h"
#include "editor/smart_edit.h"
#include "od/db/OdDbDatabase.h"
#include "ui/controls/number_text.h"
#include "ui/toolbar/CMTextEdit.h"
#include "ui/toolbar/alignment_buttons.h"
#include "ui/toolbar/letter_buttons.h"
#include "ui/toolbar/selection_facts.h"
#include "ui/toolbar/toolbar_window.h"

namespace {

constexpr int kUndo = 1012;
constexpr int kRedo = 1013;
constexpr int kStack = 1014;
constexpr int kSuperscript = 1051;
constexpr int kSubscript = 1052;
constexpr int kNumbering = 1049;
/// Buttons that work on selected text alone: upper and lower case, and the search.
constexpr int kForSelectedText[] = {1032, 1039, 2};

constexpr int kSizeDigits = 4;
constexpr double kDegreesPerRadian = 57.29577951308232;

/// While it lives, nothing that a control reports is the user's.
class refreshing_scope {
 public:
  explicit refreshing_scope(bool& flag) : m_flag(flag), m_before(std::exchange(flag, true)) {}
  ~refreshing_scope() { m_flag = m_before; }
  refreshing_scope(const refreshing_scope&) = delete;
  refreshing_scope& operator=(const refreshing_scope&) = delete;

 private:
  bool& m_flag;
  bool m_before;
};

/// A run without a colour is drawn in that of the entity.
color_code code_of_run(const mtext::format::text_color& color, const ExMTextEditable& text) {
  const bool has_none = color == mtext::format::text_color{};
  return has_none ? controls::code_of(text.color()) : controls::code_of(color);
}

void set_or_clear(CUpDownWithEdit& box, const std::optional<double>& value, double factor) {
  if (value)
    box.set(*value * factor);
  else
    box.clear();
}

}  // namespace

void CMTextEdit::show(int id, const look& now) {
  look& shown = m_looks.at(id);
  if (shown == now) return;
  shown = now;
  m_window.showButton(id);
}

void CMTextEdit::refresh() {
  const refreshing_scope scope(m_refreshing);
  showUndo();
  const mtext::format::string_partial format = editable().shownFormat();
  showLetters(format);
  showBoxes(format);
  showFont(format);
  showParagraph();
  showStacks();
}

void CMTextEdit::showUndo() {
  show(kUndo, {.enabled = m_session.undo().undo_count() > 0});
  show(kRedo, {.enabled = m_session.undo().redo_count() > 0});
}

void CMTextEdit::showLetters(const mtext::format::string_partial& format) {
  // A shape font has one weight and one slant.
  const bool one_face = static_cast<bool>(format.is_shx);
  for (const auto& [id, which] : toolbar::kLetterButtons) {
    const bool of_face = which == editing::letter_toggle::bold || which == editing::letter_toggle::italic;
    show(id,
         {.enabled = !(of_face && one_face), .checked = static_cast<bool>(editing::state_of(format, which))});
  }
  const bool selected = toolbar::holds_text(editable());
  for (const int id : kForSelectedText) show(id, {.enabled = selected});
}

void CMTextEdit::showBoxes(const mtext::format::string_partial& format) {
  m_sizes.edit().show(format.height ? controls::short_text(format.height->first, kSizeDigits)
                                    : std::u16string());
  m_colors.select(format.color ? std::optional(code_of_run(*format.color, editable())) : std::nullopt);
  set_or_clear(m_oblique, format.oblique, kDegreesPerRadian);
  set_or_clear(m_width, format.width_factor, 1);
  const auto& styles = m_styles.rows();
  const auto style = std::find_if(styles.begin(), styles.end(), [this](const StyleBox::Row& row) {
    return row.item == editable().styleId();
  });
  m_styles.select(style == styles.end() ? std::nullopt
                                        : std::optional(static_cast<std::size_t>(style - styles.begin())));
}

void CMTextEdit::showFont(const mtext::format::string_partial& format) {
  if (!format.font) return m_fonts.select({});
  auto row = m_fonts.find(format.font->str());
  if (!row && editable().database()) {
    fonts::font_row missing = fonts::row_of(format, editable().database()->fontLibrary());
    row = m_fonts.addRow({missing.name, std::move(missing)});
  }
  m_fonts.select(row);
}

void CMTextEdit::showParagraph() {
  const auto alignment = editable().currentParagraph().alignment;
  for (const auto& button : toolbar::kAlignmentButtons)
    show(button.id, {.checked = alignment == button.alignment});
  show(kNumbering, {.checked = toolbar::lists_of(editable()).all});
}

void CMTextEdit::showStacks() {
  const toolbar::stack_facts stacks = toolbar::stacks_of(editable());
  show(kStack, {.enabled = stacks.can_toggle, .checked = stacks.all_stacked});
  show(kSuperscript, {.enabled = stacks.one_run, .checked = stacks.half == editing::stack_half::upper});
  show(kSubscript, {.enabled = stacks.one_run, .checked = stacks.half == editing::stack_half::lower});
}
