#include "od/ge/OdGePoint3d.h"

const OdGePoint3d OdGePoint3d::kOrigin{0, 0, 0};
