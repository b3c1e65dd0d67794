#include "ui/widgets/color_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include "ui/controls/color_code.h"
#include "ui/widgets/color_swatch_icon.h"
#include "ui/widgets/palette_grid.h"
#include "ui/widgets/qt_text.h"

namespace {

constexpr int kTitle = 1210;
constexpr int kIndexPage = 1211;
constexpr int kTruePage = 1212;
constexpr int kColor = 1213;
constexpr int kBytes[] = {1214, 1215, 1216};
constexpr int kOk = 1304;
constexpr int kCancel = 1305;
constexpr int kSwatchSize = 32;

}  // namespace

ColorDialog::ColorDialog(const OdCmEntityColor& start, QWidget* parent) : QDialog(parent), m_color(start) {
  setWindowTitle(qtString(kTitle));
  auto* layout = new QVBoxLayout(this);
  auto* pages = new QTabWidget(this);
  pages->addTab(indexPage(), qtString(kIndexPage));
  pages->addTab(truePage(), qtString(kTruePage));
  layout->addWidget(pages);
  auto* chosen = new QHBoxLayout;
  chosen->addWidget(new QLabel(qtString(kColor), this));
  m_swatch = new QLabel(this);
  chosen->addWidget(m_swatch);
  m_name = new QLabel(this);
  chosen->addWidget(m_name, 1);
  layout->addLayout(chosen);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  buttons->button(QDialogButtonBox::Ok)->setText(qtString(kOk));
  buttons->button(QDialogButtonBox::Cancel)->setText(qtString(kCancel));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons);
  showColor();
}

QWidget* ColorDialog::indexPage() {
  auto* page = new QWidget(this);
  auto* layout = new QVBoxLayout(page);
  m_grid = new PaletteGrid(page);
  m_grid->setAccessibleName(qtString(kIndexPage));
  m_grid->chosen = [this](int index) { choose(OdCmEntityColor::fromIndex(index)); };
  layout->addWidget(m_grid);
  auto* row = new QHBoxLayout;
  for (const color_code code : {controls::kByLayerCode, controls::kByBlockCode}) {
    auto* button = new QPushButton(toQt(controls::name_of(code)), page);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, code] { choose(controls::color_of(code)); });
    row->addWidget(button);
  }
  row->addStretch();
  layout->addLayout(row);
  return page;
}

QWidget* ColorDialog::truePage() {
  auto* page = new QWidget(this);
  auto* layout = new QFormLayout(page);
  for (std::size_t i = 0; i < std::size(kBytes); ++i) {
    auto* byte = new QSpinBox(page);
    byte->setRange(0, 255);
    byte->setAccessibleName(qtString(kBytes[i]));
    connect(byte, &QSpinBox::valueChanged, this, [this] { chooseTrueColor(); });
    layout->addRow(qtString(kBytes[i]), byte);
    m_bytes[i] = byte;
  }
  return page;
}

void ColorDialog::choose(const OdCmEntityColor& color) {
  m_color = color;
  showColor();
}

void ColorDialog::chooseTrueColor() {
  const auto byte = [this](std::size_t i) { return static_cast<std::uint8_t>(m_bytes[i]->value()); };
  choose({byte(0), byte(1), byte(2)});
}

void ColorDialog::showColor() {
  const color_code code = controls::code_of(m_color);
  const auto swatch = controls::swatch_of(code, controls::kByLayerCode);
  m_swatch->setPixmap(swatchIcon(swatch).pixmap({kSwatchSize, kSwatchSize}, devicePixelRatioF()));
  m_name->setText(toQt(controls::name_of(code)));
  m_grid->select(m_color.isByACI() ? m_color.colorIndex() : 0);
  const QColor shown = QColor::fromRgb(swatch.rgb);
  const int bytes[] = {shown.red(), shown.green(), shown.blue()};
  for (std::size_t i = 0; i < std::size(bytes); ++i) {
    const QSignalBlocker quiet(m_bytes[i]);
    m_bytes[i]->setValue(bytes[i]);
  }
}
