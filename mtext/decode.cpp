#include "mtext/decode.h"

#include "mtext/dispose.h"
#include "mtext/flatten.h"
#include "mtext/serialize.h"
#include "mtext/to_geom.h"

namespace mtext {

geom_multitext decode(const std::u16string& text, const format::string& base, const convert_info& info,
                      const string_size_finder& finder, const fields_map& fields) {
  multitext logical;
  if (!parse(text, base, logical, fields)) return {};
  geom_multitext result = to_geom(logical, info.height, finder);
  result.info = info;
  dispose(result);
  return result;
}

std::u16string encode(const geom_multitext& text, const format::string& base, double base_height) {
  return serialize(flatten(text), base, base_height);
}

}  // namespace mtext
