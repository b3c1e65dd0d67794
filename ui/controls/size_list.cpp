#include "ui/controls/size_list.h"

namespace controls {

std::vector<float>& size_list() {
  static std::vector<float> sizes;
  return sizes;
}

}  // namespace controls
