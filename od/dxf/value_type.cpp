#include "od/dxf/value_type.h"

namespace dxf {
namespace {

struct CodeRange {
  int first;
  int last;
  ValueType type;
};

using enum ValueType;

constexpr CodeRange kCodeRanges[] = {
    {0, 4, string},       {5, 5, handle},       {6, 9, string},       {10, 59, real},
    {60, 79, int16},      {90, 99, int32},      {100, 102, string},   {105, 105, handle},
    {110, 149, real},     {160, 169, int64},    {170, 179, int16},    {210, 239, real},
    {270, 289, int16},    {290, 299, boolean},  {300, 309, string},   {310, 319, binary},
    {320, 369, handle},   {370, 389, int16},    {390, 399, handle},   {400, 409, int16},
    {410, 419, string},   {420, 429, int32},    {430, 439, string},   {440, 459, int32},
    {460, 469, real},     {470, 479, string},   {480, 481, handle},   {999, 999, string},
    {1000, 1003, string}, {1004, 1004, binary}, {1005, 1005, handle}, {1006, 1009, string},
    {1010, 1059, real},   {1060, 1070, int16},  {1071, 1071, int32},
};

}  // namespace

ValueType value_type(int code) {
  for (const CodeRange& range : kCodeRanges) {
    if (code <= range.last) return code >= range.first ? range.type : unknown;
  }
  return unknown;
}

bool is_text(ValueType type) { return type == string || type == handle || type == unknown; }

bool is_integer(ValueType type) { return type == int16 || type == int32 || type == int64 || type == boolean; }

}  // namespace dxf
