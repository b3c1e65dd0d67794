#include <dlfcn.h>
#include <gtest/gtest.h>

#include "host/module_loader.h"

namespace {

/// Another module of the application finds what it calls by its plain name.
void* exported(const char* name) {
  host::load_module(SCRIBE_MODULE);
  void* const module = dlopen(SCRIBE_MODULE, RTLD_NOW | RTLD_NOLOAD);
  return module ? dlsym(module, name) : nullptr;
}

TEST(ModuleExports, the_column_dialog_is_found_by_its_name_and_cancelled_where_there_are_no_windows) {
  using ShowColumns =
      bool (*)(unsigned*, unsigned char*, unsigned*, double*, double*, double*, double*, double*);
  const auto show = reinterpret_cast<ShowColumns>(exported("ShowMTextColumnsDlg"));
  ASSERT_NE(show, nullptr);
  unsigned type = 1, count = 3;
  unsigned char auto_height = 1;
  double height = 20, column_width = 30, gutter = 5, total = 100, text_height = 2.5;
  EXPECT_FALSE(show(&type, &auto_height, &count, &height, &column_width, &gutter, &total, &text_height));
  EXPECT_EQ(count, 3U);
  EXPECT_EQ(total, 100);
}

TEST(ModuleExports, pasting_is_found_by_its_name_and_has_nothing_to_paste_into_without_an_application) {
  const auto paste = reinterpret_cast<bool (*)(bool)>(exported("PasteText"));
  ASSERT_NE(paste, nullptr);
  EXPECT_FALSE(paste(/*check_only=*/true));
}

}  // namespace
