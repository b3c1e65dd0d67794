#include "ui/widgets/toolbar_widget.h"

#include <QCloseEvent>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QScreen>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include "ui/toolbar/CMTextEdit.h"
#include "ui/toolbar/control_table.h"
#include "ui/toolbar/layout_table.h"
#include "ui/toolbar/popup_place.h"
#include "ui/toolbar/toolbar_profile.h"
#include "ui/widgets/color_dialog.h"
#include "ui/widgets/qt_text.h"
#include "ui/widgets/svg_icon.h"
#include "ui/widgets/toolbar_boxes.h"
#include "ui/widgets/toolbar_grip.h"

namespace {

constexpr double kOpacity = 229 / 255.0;
constexpr int kName = 1218;
constexpr int kOk = 1;
constexpr int kOkText = 1304;
constexpr int kCancelText = 1305;
constexpr int kCloseIcon = 240;
/// Loaded first, and shown nowhere.
constexpr int kUnusedIcons[] = {237, 238, 239};
constexpr int kCompactRowHeight = 24;

struct box_width {
  int id;
  int pixels;
};
constexpr box_width kBoxWidths[] = {{1015, 110}, {1009, 150}, {1008, 64}, {1029, 110}};

QString tooltipOf(const toolbar_control& row) {
  const std::u16string_view keys = row.keys;
  const QString text = qtString(row.text);
  return keys.empty() ? text : QString("%1 (%2)").arg(text, qtTranslated(keys));
}

toolbar::screen_box boxOf(const QRect& rect) {
  return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

std::vector<toolbar::monitor> monitors() {
  std::vector<toolbar::monitor> all;
  for (const QScreen* screen : QGuiApplication::screens())
    all.push_back({boxOf(screen->geometry()), boxOf(screen->availableGeometry())});
  return all;
}

QWidget* gap(QWidget* parent) {
  auto* line = new QFrame(parent);
  line->setFrameShape(QFrame::VLine);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

}  // namespace

ToolbarWidget::ToolbarWidget(QWidget* owner)
    : QWidget(owner, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus), m_owner(owner) {
  setAttribute(Qt::WA_ShowWithoutActivating);
  setWindowOpacity(kOpacity);
  setWindowTitle(qtString(kName));
  setAccessibleName(windowTitle());
  for (const int number : kUnusedIcons) m_icons.add(svgIcon(number));
}

void ToolbarWidget::fill(CMTextEdit& bar) {
  m_bar = &bar;
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  m_content = new QFrame(this);
  static_cast<QFrame*>(m_content)->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
  layout->addWidget(m_content);
  auto* columns = new QHBoxLayout(m_content);
  columns->setContentsMargins(2, 2, 2, 2);
  columns->setSpacing(3);
  columns->addWidget(new ToolbarGrip(m_content));
  auto* rows = new QVBoxLayout;
  rows->setSpacing(2);
  columns->addLayout(rows);
  for (const std::span<const int> ids : toolbar::layout_rows(bar.isCompact())) {
    auto* row = new QHBoxLayout;
    row->setSpacing(1);
    fillRow(*row, ids);
    rows->addLayout(row);
  }
  columns->addWidget(closeButton(), 0, Qt::AlignTop);
  for (const auto& [id, each] : m_buttons) showButton(id);
  for (QLineEdit* line : m_content->findChildren<QLineEdit*>()) {
    line->installEventFilter(this);
    if (QWidget* combo = line->focusProxy()) combo->installEventFilter(this);
  }
  adjustSize();
}

void ToolbarWidget::empty() {
  m_buttons.clear();
  m_controls.clear();
  delete layout();
  delete m_content;
  m_content = nullptr;
  m_bar = nullptr;
}

void ToolbarWidget::fillRow(QHBoxLayout& layout, std::span<const int> ids) {
  bool far_end = false;
  for (const int id : ids) {
    if (id == toolbar::kFarEnd) {
      layout.addStretch();
      far_end = true;
    } else {
      layout.addWidget(id == 0 ? gap(m_content) : control(toolbar::control_of(id)));
    }
  }
  if (!far_end) layout.addStretch();
}

QWidget* ToolbarWidget::control(const toolbar_control& row) {
  QWidget* made = toolbar::is_button(row) ? button(row) : box(row);
  m_controls[row.id] = made;
  made->setToolTip(tooltipOf(row));
  QWidget* named = made->focusProxy() ? made->focusProxy() : made;
  named->setAccessibleName(qtString(row.text));
  if (m_bar->isCompact()) made->setFixedHeight(kCompactRowHeight);
  return made;
}

QWidget* ToolbarWidget::button(const toolbar_control& row) {
  auto* made = new QToolButton(m_content);
  const int icon = toolbar::icon_of(row, toolbar::has_english_letters());
  if (icon != 0) made->setIcon(m_icons.add(svgIcon(icon)));
  if (row.id == kOk) made->setText(qtString(kOkText));
  made->setIconSize({16, 16});
  made->setAutoRaise(row.id != kOk);
  made->setCheckable(row.kind == control_kind::check_button);
  made->setFocusPolicy(Qt::TabFocus);
  m_buttons[row.id] = made;
  connect(made, &QToolButton::clicked, this, [this, id = row.id] {
    m_bar->press(id);
    // The toolkit has turned the button over; how it looks is the toolbar's to say.
    if (m_bar) showButton(id);
  });
  return made;
}

QWidget* ToolbarWidget::box(const toolbar_control& row) {
  const auto make = [&]() -> QWidget* {
    switch (row.id) {
      case 1015:
        return styleBox(m_bar->styles(), m_content);
      case 1009:
        return fontBox(m_bar->fonts(), m_content);
      case 1008:
        return sizeBox(m_bar->sizes(), m_content);
      case 1029:
        return colorBox(m_bar->colors(), m_content);
      case 1040:
        return spinBox(m_bar->oblique(), row.icon, qtString(row.text), m_content);
      default:
        return spinBox(m_bar->widthFactor(), row.icon, qtString(row.text), m_content);
    }
  };
  QWidget* made = make();
  for (const auto& [id, pixels] : kBoxWidths)
    if (id == row.id) made->setFixedWidth(pixels);
  return made;
}

QToolButton* ToolbarWidget::closeButton() {
  auto* made = new QToolButton(m_content);
  made->setIcon(m_icons.add(svgIcon(kCloseIcon)));
  made->setIconSize({16, 16});
  made->setAutoRaise(true);
  made->setFocusPolicy(Qt::TabFocus);
  made->setToolTip(qtString(kCancelText));
  made->setAccessibleName(qtString(kCancelText));
  connect(made, &QToolButton::clicked, this, &QWidget::close);
  return made;
}

void ToolbarWidget::showButton(int id) {
  const auto found = m_buttons.find(id);
  if (found == m_buttons.end()) return;
  const CMTextEdit::look& look = m_bar->lookOf(id);
  found->second->setEnabled(look.enabled);
  found->second->setChecked(look.checked);
}

HostPixel ToolbarWidget::popupPlace(int id) const {
  const QWidget* at = m_controls.at(id);
  return toolbar::popup_place(boxOf(QRect(at->mapToGlobal(QPoint()), at->size())), monitors());
}

HostPixel ToolbarWidget::place() const { return {pos().x(), pos().y()}; }

void ToolbarWidget::moveTo(const HostPixel& place) { move(place.x, place.y); }

std::optional<OdCmEntityColor> ToolbarWidget::pickColor(const OdCmEntityColor& start) {
  ColorDialog dialog(start, m_owner);
  return dialog.exec() == QDialog::Accepted ? std::optional(dialog.color()) : std::nullopt;
}

void ToolbarWidget::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (m_bar) m_bar->close();
}

bool ToolbarWidget::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseButtonPress && qobject_cast<QLineEdit*>(watched)) {
    acceptFocus(true);
    activateWindow();
    static_cast<QWidget*>(watched)->setFocus(Qt::MouseFocusReason);
  }
  if (event->type() == QEvent::FocusOut &&
      static_cast<QFocusEvent*>(event)->reason() == Qt::ActiveWindowFocusReason)
    acceptFocus(false);
  return false;
}

void ToolbarWidget::acceptFocus(bool accepts) {
  if (QWindow* window = windowHandle()) window->setFlag(Qt::WindowDoesNotAcceptFocus, !accepts);
}
