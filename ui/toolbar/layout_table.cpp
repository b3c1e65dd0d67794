#include "ui/toolbar/layout_table.h"

namespace toolbar {
namespace {

constexpr int kFirstRow[] = {1015, 1009, 1008, 1029, 0,    1001, 1002, 1003, 1004, 0,
                             1014, 1051, 1052, 0,    1032, 1039, 0,    1012, 1013};
constexpr int kSecondRow[] = {1005, 1006, 1007, 1010, 1011, 0,    1048, 1049, 1053,    1054,
                              0,    1047, 1050, 0,    1040, 1042, 0,    2,    kFarEnd, 1};
constexpr int kCompactRow[] = {1003, 1004, 0, 1012, 1013, kFarEnd, 1};

constexpr std::span<const int> kFull[] = {kFirstRow, kSecondRow};
constexpr std::span<const int> kCompact[] = {kCompactRow};

}  // namespace

std::span<const std::span<const int>> layout_rows(bool compact) {
  if (compact) return kCompact;
  return kFull;
}

}  // namespace toolbar
