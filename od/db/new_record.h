#pragma once

#include <initializer_list>
#include <memory>
#include <string_view>
#include <variant>

#include "od/dxf/record.h"
#include "od/ge/OdGePoint3d.h"

/// A group that a new record starts with.
struct OdNewGroup {
  int code;
  std::variant<double, int, std::u16string_view, OdGePoint3d> value;
};

/// A record for an object that is in no file yet: in the newest form, with subclass markers. `groups` follow
/// the group 0.
std::unique_ptr<dxf::Record> odNewRecord(std::string_view type, std::initializer_list<OdNewGroup> groups);

/// The groups of `record` written anew in the manner of `target`, which is a new record with the group 0
/// alone. Subclass markers are left out where the target's version has none.
void odRewriteGroups(const dxf::Record& record, dxf::Record& target);
