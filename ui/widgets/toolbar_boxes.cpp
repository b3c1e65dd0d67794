#include "ui/widgets/toolbar_boxes.h"

#include <QLineEdit>

#include "ui/resources/message_format.h"
#include "ui/widgets/color_swatch_icon.h"
#include "ui/widgets/edit_link.h"
#include "ui/widgets/list_box.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/svg_icon.h"

namespace {

constexpr int kMissing = 1217;

int number(const std::optional<std::size_t>& row) { return row ? static_cast<int>(*row) : -1; }

/// Has the box call `choose` for the rows that the user chooses.
template <class Control>
void connectChoice(ListBox& box, Control& control) {
  QObject::connect(&box, &QComboBox::activated, &box,
                   [&control](int row) { control.choose(static_cast<std::size_t>(row)); });
}

/// The combo's own reading of what is typed would choose a row behind the back of the control.
void takeTyping(ListBox& box, CEditEx& edit) {
  box.setEditable(true);
  box.setCompleter(nullptr);
  box.lineEdit()->setFocusPolicy(Qt::StrongFocus);
  QObject::disconnect(box.lineEdit(), &QLineEdit::editingFinished, &box, nullptr);
  QObject::disconnect(box.lineEdit(), &QLineEdit::returnPressed, &box, nullptr);
  new EditLink(*box.lineEdit(), edit);
}

std::vector<ListBox::Row> fontRows(const CMTextEdit::FontBox& fonts) {
  const QIcon icons[] = {svgIcon(124), svgIcon(125)};
  std::vector<ListBox::Row> rows;
  for (const auto& row : fonts.rows())
    rows.push_back(
        {toQt(row.text), icons[controls::is_shape_font(row.item.word) ? 0 : 1], !row.item.installed});
  return rows;
}

}  // namespace

QWidget* sizeBox(CComboBoxConfirmed& sizes, QWidget* parent) {
  auto* box = new ListBox(parent);
  takeTyping(*box, sizes.edit());
  sizes.shown = [box, &sizes] {
    std::vector<ListBox::Row> rows;
    for (std::size_t row = 0; row < sizes.sizes().size(); ++row) rows.push_back({toQt(sizes.rowText(row))});
    box->setRows(rows);
    box->select(number(sizes.selected()));
    box->lineEdit()->setText(toQt(sizes.edit().text()));
  };
  sizes.shown();
  connectChoice(*box, sizes);
  return box;
}

QWidget* fontBox(CMTextEdit::FontBox& fonts, QWidget* parent) {
  auto* box = new ListBox(parent);
  takeTyping(*box, fonts.edit());
  const auto select = [box, &fonts] {
    const auto row = fonts.selected();
    if (box->count() != static_cast<int>(fonts.rows().size())) box->setRows(fontRows(fonts));
    box->select(number(row));
    box->lineEdit()->setText(toQt(fonts.edit().text()));
    const bool missing = row && !fonts.rows()[*row].item.installed;
    QFont font = box->font();
    font.setItalic(missing);
    box->lineEdit()->setFont(font);
    box->lineEdit()->setToolTip(missing ? toQt(resources::format_string(kMissing, {fonts.rows()[*row].text}))
                                        : box->toolTip());
  };
  fonts.shown = select;
  select();
  connectChoice(*box, fonts);
  return box;
}

QWidget* styleBox(CMTextEdit::StyleBox& styles, QWidget* parent) {
  auto* box = new ListBox(parent);
  std::vector<ListBox::Row> rows;
  for (const auto& row : styles.rows()) rows.push_back({toQt(row.text)});
  box->setRows(rows);
  styles.shown = [box, &styles] { box->select(number(styles.selected())); };
  styles.shown();
  connectChoice(*box, styles);
  return box;
}

QWidget* colorBox(CColorComboBox& colors, QWidget* parent) {
  auto* box = new ListBox(parent);
  colors.shown = [box, &colors] { box->select(number(colors.selected())); };
  colors.listed = [box, &colors] {
    std::vector<ListBox::Row> rows;
    for (std::size_t row = 0; row < colors.codes().size(); ++row)
      rows.push_back({toQt(colors.rowText(row)), swatchIcon(colors.rowSwatch(row))});
    box->setRows(rows);
    colors.shown();
  };
  colors.listed();
  connectChoice(*box, colors);
  return box;
}
