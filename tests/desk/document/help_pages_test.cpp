#include "desk/document/help_pages.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "host/events.h"

namespace {

std::string guide(const std::string& name) {
  std::ostringstream text;
  text << std::ifstream(std::filesystem::path(SCRIBE_SOURCE_DIR) / "docs" / (name + ".md")).rdbuf();
  return text.str();
}

TEST(HelpPages, an_empty_key_and_an_unknown_one_lead_to_the_first_page) {
  EXPECT_EQ(helpPage(u"").name, "README");
  EXPECT_EQ(helpPage(u"IDH_NOBODY_KNOWS").name, "README");
  EXPECT_FALSE(guide("README").empty());
}

TEST(HelpPages, the_question_about_changes_leads_to_the_place_that_explains_it) {
  const HelpPage page = helpPage(u"IDH_SCRIBE_MTEXT_SAVE_CHANGES");
  EXPECT_EQ(page.anchor, "leaving-a-text");
  EXPECT_NE(guide(page.name).find("## Leaving a text"), std::string::npos);
}

}  // namespace
