#include "ui/dialogs/window/case_window.h"

#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/dialogs/window/button_row.h"
#include "ui/dialogs/window/labels.h"
#include "ui/widgets/qt_text.h"

namespace {

constexpr int kTitle = 1340;

}  // namespace

CaseWindow::CaseWindow(CCaseDlg& dialog, QWidget* parent) : QDialog(parent), m_dialog(dialog) {
  setWindowTitle(qtString(kTitle));
  const auto labels = dialogs::labels_of({1341, 1342, 1343, 1344, 1345});
  auto* const layout = new QVBoxLayout(this);
  for (std::size_t i = 0; i < m_radios.size(); ++i) {
    const CCaseDlg::choice& choice = CCaseDlg::kChoices[i];
    m_radios[i] = new QRadioButton(labels.at(choice.label), this);
    dialogs::name_control(*m_radios[i], choice.control, m_radios[i]->text());
    m_radios[i]->setChecked(choice.mode == dialog.mode());
    layout->addWidget(m_radios[i]);
  }
  layout->addWidget(dialogs::button_row(*this, {}));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void CaseWindow::accept() {
  for (std::size_t i = 0; i < m_radios.size(); ++i)
    if (m_radios[i]->isChecked()) m_dialog.check(CCaseDlg::kChoices[i]);
  QDialog::accept();
}
