#include "commands/single_line/text_data.h"

HostApDataManager<TextData>& text_data() {
  static HostApDataManager<TextData> data;
  return data;
}
