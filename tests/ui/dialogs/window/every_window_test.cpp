#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QStyleFactory>
#include <set>

#include "od/base/unicode.h"
#include "tests/ui/dialogs/window/shown_window.h"
#include "ui/dialogs/CParagraphDlg.h"
#include "ui/dialogs/CSymbolDlg.h"
#include "ui/dialogs/recent_symbols.h"
#include "ui/dialogs/window/case_window.h"
#include "ui/dialogs/window/character_grid.h"
#include "ui/dialogs/window/columns_window.h"
#include "ui/dialogs/window/paragraph_window.h"
#include "ui/dialogs/window/symbol_window.h"
#include "ui/resources/languages.h"

namespace {

/// Each window of this folder, filled.
struct EveryWindow {
  CParagraphDlg paragraph{/*has_spacing=*/true, {.style = 1, .value = 1.5}, 2.5};
  CMTextColumnsDlg columns{{.type = 2,
                            .auto_height = 1,
                            .count = 12,
                            .height = 1234.5678,
                            .column_width = 1234.5678,
                            .gutter = 1234.5678,
                            .total = 12345.6789,
                            .text_height = 2.5}};
  CSymbolDlg symbol;
  CCaseDlg letter_case{2};
  ShownWindow<ParagraphWindow> paragraph_window{paragraph};
  ShownWindow<ColumnsWindow> columns_window{columns};
  ShownWindow<SymbolWindow> symbol_window{symbol};
  ShownWindow<CaseWindow> case_window{letter_case};
  std::map<std::string, QDialog*> windows{{"paragraph", &paragraph_window},
                                          {"columns", &columns_window},
                                          {"symbol", &symbol_window},
                                          {"case", &case_window}};

  explicit EveryWindow(IProfile& profile) : symbol({.font = u"Liberation Serif"}, &profile) {}
};

class WindowsIn : public testing::TestWithParam<std::u16string> {
 protected:
  WindowsIn() {
    resources::speak(GetParam());
    for (const char32_t each : {U'\u2205', U'\u00B1', U'\u03A9'})
      dialogs::remember_symbol(m_host.profile(), each);
  }
  ~WindowsIn() override { resources::speak(u"eng"); }

  DialogHost m_host;
};

INSTANTIATE_TEST_SUITE_P(Languages, WindowsIn, testing::Values(u"eng", u"deu", u"rus"),
                         [](const auto& each) { return odToUtf8(each.param); });

/// How wide a control has to be to show its text.
int wanted_width(const QWidget& control) {
  const auto* label = qobject_cast<const QLabel*>(&control);
  if (label && label->wordWrap()) return 0;
  if (const auto* edit = qobject_cast<const QLineEdit*>(&control))
    return edit->fontMetrics().horizontalAdvance(edit->text());
  if (const auto* combo = qobject_cast<const QComboBox*>(&control))
    return combo->fontMetrics().horizontalAdvance(combo->currentText());
  if (const auto* box = qobject_cast<const QGroupBox*>(&control))
    return box->fontMetrics().horizontalAdvance(box->title());
  return control.sizeHint().width();
}

bool has_text(const QWidget& control) {
  return qobject_cast<const QLabel*>(&control) || qobject_cast<const QAbstractButton*>(&control) ||
         qobject_cast<const QLineEdit*>(&control) || qobject_cast<const QComboBox*>(&control) ||
         qobject_cast<const QGroupBox*>(&control);
}

TEST_P(WindowsIn, no_text_is_cut) {
  const EveryWindow all(m_host.profile());
  int texts = 0;
  for (const auto& [name, window] : all.windows) {
    for (const QWidget* control : window->findChildren<QWidget*>()) {
      if (!control->isVisible() || !has_text(*control)) continue;
      ++texts;
      EXPECT_GE(control->width(), wanted_width(*control))
          << name << ' ' << control->objectName().toStdString();
      EXPECT_TRUE(control->parentWidget()->rect().contains(control->geometry())) << name;
    }
  }
  EXPECT_GT(texts, 30);
}

TEST_P(WindowsIn, no_control_lies_over_another) {
  const EveryWindow all(m_host.profile());
  for (const auto& [name, window] : all.windows) {
    const auto controls = window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* one : controls) {
      for (const QWidget* other : controls) {
        const bool both = one != other && one->isVisible() && other->isVisible();
        EXPECT_FALSE(both && one->geometry().intersects(other->geometry())) << name;
      }
    }
  }
}

TEST_P(WindowsIn, every_control_that_takes_the_focus_has_a_name_for_those_who_do_not_see_it) {
  const EveryWindow all(m_host.profile());
  for (const auto& [name, window] : all.windows) {
    int named = 0;
    for (const QWidget* control : window->findChildren<QWidget*>()) {
      if (control->objectName().toInt() == 0) continue;
      ++named;
      EXPECT_FALSE(control->accessibleName().isEmpty()) << name << ' ' << control->objectName().toStdString();
    }
    EXPECT_GT(named, 4);
  }
}

/// The letters that are underlined in the texts of a window.
std::vector<QChar> mnemonics_of(const QDialog& window) {
  std::vector<QChar> letters;
  const auto add = [&letters](const QString& text) {
    const auto at = text.indexOf(u'&');
    if (at >= 0) letters.push_back(text[at + 1].toLower());
  };
  for (const QLabel* label : window.findChildren<QLabel*>()) add(label->text());
  for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) add(button->text());
  for (const QGroupBox* box : window.findChildren<QGroupBox*>()) add(box->title());
  return letters;
}

TEST_P(WindowsIn, no_letter_leads_to_two_controls) {
  const EveryWindow all(m_host.profile());
  for (const auto& [name, window] : all.windows) {
    const auto letters = mnemonics_of(*window);
    EXPECT_EQ(std::set<QChar>(letters.begin(), letters.end()).size(), letters.size()) << name;
    EXPECT_GE(letters.size(), 3u) << name;
  }
}

/// The numbers of the controls that Tab goes through, from the one that has the focus first.
std::vector<int> tab_order(QDialog& window) {
  std::vector<int> order;
  for (int steps = 0; steps < 40; ++steps) {
    const int number = window.focusWidget() ? window.focusWidget()->objectName().toInt() : 0;
    if (!order.empty() && number == order.front()) break;
    order.push_back(number);
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
  }
  return order;
}

TEST_P(WindowsIn, tab_goes_from_the_top_to_the_buttons) {
  EveryWindow all(m_host.profile());
  EXPECT_EQ(tab_order(all.paragraph_window), (std::vector<int>{1031, 1009, 1008, 1, 2}));
  EXPECT_EQ(tab_order(all.columns_window), (std::vector<int>{1029, 1032, 1014, 1015, 1016, 1, 2, 9}));
  EXPECT_EQ(tab_order(all.symbol_window), (std::vector<int>{1331, 1332, 1334, 1333, 1, 2}));
}

QPalette dark_palette() {
  QPalette palette(QColor(0x2D, 0x2D, 0x30));
  palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
  palette.setColor(QPalette::Highlight, QColor(0x2A, 0x6F, 0xC9));
  return palette;
}

/// A person looks at them: SCRIBE_PICTURES names a folder.
TEST_P(WindowsIn, are_painted_in_light_and_in_dark) {
  const QString folder = qEnvironmentVariable("SCRIBE_PICTURES");
  for (const bool dark : {false, true}) {
    const QPalette before = QApplication::palette();
    if (dark) QApplication::setPalette(dark_palette());
    EveryWindow all(m_host.profile());
    for (const auto& [name, window] : all.windows) {
      const QPixmap picture = window->grab();
      const QColor corner = picture.toImage().pixelColor(2, 2);
      EXPECT_EQ(corner.lightness() < 128, dark) << name;
      const QString file =
          QString("%1-%2-%3.png")
              .arg(name.c_str(), QString::fromStdU16String(GetParam()), dark ? "dark" : "light");
      EXPECT_TRUE(folder.isEmpty() || picture.save(QDir(folder).filePath(file)));
    }
    QApplication::setPalette(before);
  }
}

}  // namespace
