#pragma once

#include <string>

/// A typeface family of this machine.
struct OdInstalledTypeface {
  std::u16string name{};    ///< of the family
  bool fixedPitch = false;  ///< all its characters are equally wide
  int charset = 0;          ///< number of the Windows character set that it is made for; 2 is symbols

  friend bool operator==(const OdInstalledTypeface&, const OdInstalledTypeface&) = default;
};
