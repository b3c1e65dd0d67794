#include "micui/hit_path.h"

#include <gtest/gtest.h>

#include "micui/transform.h"

using micui::control;
using micui::control_path;
using micui::hit_path;

namespace {

/// A child of `parent` with its lower left corner at (`x`, `y`).
control& add_box(control& parent, const char16_t* name, double x, double y, double width, double height) {
  const auto child = parent.add_child<control>(name);
  child->x = x;
  child->y = y;
  child->width = width;
  child->height = height;
  return *child;
}

OdSmartPtr<control> root_of(double width, double height) {
  const auto root = odNew<control>();
  root->name = u"root";
  root->width = width;
  root->height = height;
  return root;
}

/// The names of a path, joined by blanks.
std::u16string names(const control_path& path) {
  std::u16string joined;
  for (const auto& each : path) joined += (joined.empty() ? u"" : u" ") + each->name;
  return joined;
}

}  // namespace

TEST(HitPath, leads_from_the_root_to_the_deepest_control) {
  const auto root = root_of(10, 10);
  add_box(add_box(*root, u"outer", 2, 2, 6, 6), u"inner", 1, 1, 2, 2);
  EXPECT_EQ(names(hit_path(*root, {4, 4})), u"root outer inner");
  EXPECT_EQ(names(hit_path(*root, {7, 7})), u"root outer");
  EXPECT_EQ(names(hit_path(*root, {1, 1})), u"root");
  EXPECT_EQ(names(hit_path(*root, {11, 1})), u"");
  EXPECT_EQ(root->child_at({4, 4})->name, u"inner");
  EXPECT_TRUE(root->child_at({1, 1}).isNull());
}

TEST(HitPath, of_two_overlapping_siblings_the_later_one_is_hit) {
  const auto root = root_of(10, 10);
  add_box(*root, u"below", 0, 0, 6, 6);
  add_box(*root, u"above", 4, 4, 6, 6);
  EXPECT_EQ(names(hit_path(*root, {5, 5})), u"root above");
}

TEST(HitPath, finds_a_child_outside_its_parent) {
  const auto root = root_of(10, 10);
  add_box(*root, u"handle", 20, 20, 2, 2);
  EXPECT_EQ(names(hit_path(*root, {21, 21})), u"root handle");
}

TEST(HitPath, finds_what_is_not_visible) {
  const auto root = root_of(10, 10);
  add_box(*root, u"hidden", 0, 0, 5, 5).visible = false;
  EXPECT_EQ(names(hit_path(*root, {1, 1})), u"root hidden");
}

TEST(HitPath, finds_an_empty_control_at_its_origin) {
  const auto root = root_of(10, 10);
  add_box(*root, u"dash", 0, 0, 0, 0);
  EXPECT_EQ(names(hit_path(*root, {0, 0})), u"root dash");
}

TEST(HitPath, keeps_a_control_that_the_tree_has_dropped) {
  const auto root = root_of(10, 10);
  add_box(*root, u"handle", 3, 4, 2, 2);
  const control_path path = hit_path(*root, {4, 5});
  root->children.clear();
  EXPECT_EQ(path.back()->name, u"handle");
  EXPECT_EQ(micui::path_to_local(path, {4, 5}), (OdGePoint2d{1, 1}));
}

TEST(HitPath, is_searched_and_cut_by_name) {
  const auto root = root_of(10, 10);
  add_box(add_box(*root, u"area", 0, 0, 10, 10), u"tab", 1, 1, 2, 2);
  const control_path path = hit_path(*root, {2, 2});
  const auto area = micui::path_find(path, u"area");
  EXPECT_EQ(names(micui::path_prefix(path, area)), u"root area");
  EXPECT_TRUE(micui::path_find(path, u"column").isNull());
}

TEST(HitPath, to_a_name_goes_depth_first_and_may_end_at_the_root) {
  const auto root = root_of(10, 10);
  add_box(add_box(*root, u"column", 0, 0, 5, 5), u"border", 0, 0, 5, 5);
  add_box(*root, u"border", 0, 0, 1, 1);
  EXPECT_EQ(names(micui::path_to(*root, u"border")), u"root column border");
  EXPECT_EQ(names(micui::path_to(*root, u"root")), u"root");
  EXPECT_EQ(names(micui::path_to(*root, u"absent")), u"");
}

TEST(HitPath, find_looks_among_the_children_before_it_goes_deeper) {
  const auto root = root_of(10, 10);
  add_box(add_box(*root, u"column", 0, 0, 5, 5), u"border", 0, 0, 5, 5);
  add_box(*root, u"border", 0, 0, 1, 1);
  EXPECT_EQ(root->find(u"border")->width, 1);
  root->children.pop_back();
  EXPECT_EQ(root->find(u"border")->width, 5);
  EXPECT_TRUE(root->find(u"absent").isNull());
}
