#include "od/dxf/drawing_template.h"

const std::string_view dxf::kClassesTemplate = R"(
0 SECTION
2 CLASSES
0 CLASS
1 ACDBDICTIONARYWDFLT
2 AcDbDictionaryWithDefault
3 ObjectDBX Classes
90 0
>=1018 91 1
280 0
281 0
0 CLASS
1 ACDBPLACEHOLDER
2 AcDbPlaceHolder
3 ObjectDBX Classes
90 0
>=1018 91 1
280 0
281 0
0 CLASS
1 LAYOUT
2 AcDbLayout
3 ObjectDBX Classes
90 0
>=1018 91 2
280 0
281 0
0 ENDSEC
)";
