#include "ui/dialogs/user_locale.h"

namespace dialogs {

/// A system whose settings name a locale that is not installed has none to give: all stays as it is.
UserLocale::UserLocale() : m_own(newlocale(LC_ALL_MASK, "", nullptr)) {
  if (m_own) m_before = uselocale(m_own);
}

UserLocale::~UserLocale() {
  if (!m_own) return;
  uselocale(m_before);
  freelocale(m_own);
}

}  // namespace dialogs
