#include "desk/window/qt_help.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <utility>

#include "desk/document/help_pages.h"

namespace {

/// What links to a heading call it: small letters, a dash for each blank, nothing else.
QString anchorOf(const QString& heading) {
  QString anchor;
  for (const QChar sign : heading.toLower()) {
    if (sign == u' ') anchor += u'-';
    if (sign.isLetterOrNumber() || sign == u'-') anchor += sign;
  }
  return anchor;
}

void nameHeadings(QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0) continue;
    QTextCharFormat named;
    named.setAnchor(true);
    named.setAnchorNames({anchorOf(block.text())});
    QTextCursor cursor(block);
    cursor.select(QTextCursor::BlockUnderCursor);
    cursor.mergeCharFormat(named);
  }
}

/// Links from guide to guide lead to the pages that are made of them, and headings are places to go to.
QString htmlOf(const QString& markdown) {
  QTextDocument document;
  document.setMarkdown(markdown);
  nameHeadings(document);
  QString html = document.toHtml();
  html.replace(".md\"", ".html\"");
  html.replace(".md#", ".html#");
  return html;
}

void writePage(const QFileInfo& guide, const QString& folder) {
  QFile source(guide.filePath());
  QFile page(QDir(folder).filePath(guide.completeBaseName() + ".html"));
  if (source.open(QIODevice::ReadOnly) && page.open(QIODevice::WriteOnly))
    page.write(htmlOf(QString::fromUtf8(source.readAll())).toUtf8());
}

}  // namespace

QtHelp::QtHelp(QString folder, Open open, std::function<void(const QString&)> refuse)
    : m_folder(std::move(folder)), m_open(std::move(open)), m_refuse(std::move(refuse)) {}

void QtHelp::writePages() {
  if (std::exchange(m_written, true)) return;
  const QDir guides(m_folder);
  for (const QFileInfo& guide : guides.entryInfoList({"*.md"}, QDir::Files)) writePage(guide, m_pages.path());
  QDir(m_pages.path()).mkdir("images");
  for (const QFileInfo& image : QDir(guides.filePath("images")).entryInfoList(QDir::Files))
    QFile::copy(image.filePath(), m_pages.filePath("images/" + image.fileName()));
}

void QtHelp::show(std::u16string_view key) {
  writePages();
  const HelpPage page = helpPage(key);
  const QString name = QString::fromStdString(page.name) + ".html";
  const bool exists = QFile::exists(m_pages.filePath(name));
  QUrl url = QUrl::fromLocalFile(m_pages.filePath(name));
  if (!page.anchor.empty()) url.setFragment(QString::fromStdString(page.anchor));
  if (!exists || !m_open(url)) m_refuse(QDir(m_folder).filePath(QString::fromStdString(page.name) + ".md"));
}

QString guidesFolder() {
  const QString installed = QDir(QCoreApplication::applicationDirPath()).filePath("../share/doc/scribe");
  return QDir(installed).exists() ? installed : QString(SCRIBE_GUIDES);
}
