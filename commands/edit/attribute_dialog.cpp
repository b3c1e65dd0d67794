#include "commands/edit/attribute_dialog.h"

#include <dlfcn.h>

void show_attribute_dialog(const OdDbObjectId& definition) {
  // It stays loaded, as every module does.
  void* library = dlopen("libcmdextras.so", RTLD_NOW);
  void* symbol = library ? dlsym(library, "ShowAttDDEIT") : nullptr;
  if (symbol) reinterpret_cast<ShowAttDDEITFunction>(symbol)(definition);
}
