#pragma once

#include <QTemporaryDir>
#include <QUrl>
#include <functional>

#include "host/help.h"

/// Shows the guides in the user's browser. They are written out as pages for it when one is asked for first,
/// and go away with the service.
class QtHelp : public IHelpService {
 public:
  using Open = std::function<bool(const QUrl&)>;

  /// `folder` has the guides, in Markdown. `open` shows a page and says whether it could, `refuse` is told
  /// which could not be shown.
  QtHelp(QString folder, Open open, std::function<void(const QString&)> refuse);
  void show(std::u16string_view key) override;

 private:
  void writePages();

  QString m_folder;
  Open m_open;
  std::function<void(const QString&)> m_refuse;
  QTemporaryDir m_pages;
  bool m_written = false;
};

/// The folder of the guides: that of an installed program, or of the source tree that it was built from.
QString guidesFolder();
