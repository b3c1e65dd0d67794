// Writes the sample drawings into a folder, by default `samples` of the current one.

#include <exception>
#include <filesystem>
#include <iostream>

#include "od/dxf/atomic_save.h"
#include "samples/first_floor/first_floor.h"

int main(int count, char** arguments) {
  const std::filesystem::path folder = count > 1 ? arguments[1] : "samples";
  try {
    dxf::atomic_save(folder / "first-floor.dxf", samples::first_floor());
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 3;
  }
  return 0;
}
