#include "micui/rhomb.h"

#include "micui/triangle.h"

namespace micui {

namespace {

struct half {
  double x, y;
  std::uint64_t direction;
};

}  // namespace

void rhomb::create_children() {
  add_child<triangle>(u"first");
  add_child<triangle>(u"second");
}

void rhomb::layout() {
  const auto place = [this](std::u16string_view wanted, const half& where) {
    const auto arrow = child<triangle>(wanted);
    arrow->width = vertical ? width : width / 2;
    arrow->height = vertical ? height / 2 : height;
    arrow->x = where.x;
    arrow->y = where.y;
    arrow->direction = where.direction;
    arrow->border_color = border_color;
    arrow->fill_color = fill_color;
  };
  place(u"first", vertical ? half{0, height / 2, 1} : half{0, 0, 2});
  place(u"second", vertical ? half{0, 0, 3} : half{width / 2, 0, 0});
}

}  // namespace micui
