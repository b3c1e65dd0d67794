#include "desk/window/qt_help.h"

#include <gtest/gtest.h>

#include <QFile>
#include <vector>

namespace {

class Guides : public testing::Test {
 protected:
  QtHelp service(bool browser) {
    return QtHelp(
        QString(SCRIBE_SOURCE_DIR) + "/docs",
        [this, browser](const QUrl& url) {
          m_opened.push_back(url);
          return browser;
        },
        [this](const QString& guide) { m_refused.push_back(guide); });
  }

  std::vector<QUrl> m_opened;
  std::vector<QString> m_refused;
};

TEST_F(Guides, are_shown_as_pages_for_a_browser) {
  QtHelp help = service(/*browser=*/true);
  help.show(u"");
  ASSERT_EQ(m_opened.size(), 1u);
  QFile page(m_opened[0].toLocalFile());
  ASSERT_TRUE(page.open(QIODevice::ReadOnly));
  const QByteArray html = page.readAll();
  EXPECT_TRUE(html.contains("paragraphs-and-columns.html"));
  EXPECT_FALSE(html.contains(".md\""));
  EXPECT_TRUE(m_refused.empty());
}

TEST_F(Guides, a_key_leads_to_a_place_in_its_page) {
  QtHelp help = service(/*browser=*/true);
  help.show(u"IDH_SCRIBE_MTEXT_SAVE_CHANGES");
  ASSERT_EQ(m_opened.size(), 1u);
  EXPECT_TRUE(m_opened[0].path().endsWith("/paragraphs-and-columns.html"));
  EXPECT_EQ(m_opened[0].fragment(), "leaving-a-text");
  QFile page(m_opened[0].toLocalFile());
  ASSERT_TRUE(page.open(QIODevice::ReadOnly));
  EXPECT_TRUE(page.readAll().contains("\"leaving-a-text\""));
}

TEST_F(Guides, without_a_browser_the_user_is_told_where_they_lie) {
  QtHelp help = service(/*browser=*/false);
  help.show(u"");
  ASSERT_EQ(m_refused.size(), 1u);
  EXPECT_TRUE(QFile::exists(m_refused[0]));
}

}  // namespace
