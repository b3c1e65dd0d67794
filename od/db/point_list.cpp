#include "od/db/point_list.h"

std::vector<OdGePoint3d> odPointList(const dxf::Record& record, dxf::Range range, int code) {
  const std::vector<std::size_t> starts = record.find_all(code, range);
  std::vector<OdGePoint3d> points;
  for (std::size_t i = 0; i < starts.size(); ++i) {
    const std::size_t end = i + 1 < starts.size() ? starts[i + 1] : range.end;
    const dxf::Point p = record.get_point(starts[i], end);
    points.push_back({p[0], p[1], p[2]});
  }
  return points;
}

std::vector<double> odNumberList(const dxf::Record& record, dxf::Range range, int code) {
  std::vector<double> numbers;
  for (const std::size_t i : record.find_all(code, range))
    numbers.push_back(record.get_double(i).value_or(0));
  return numbers;
}
