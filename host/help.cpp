#include "host/help.h"

#include "host/application.h"
#include "host/exports.h"

IHelpService* Get_IHelpService() {
  HostApplication* application = host::application();
  return application ? &application->help() : nullptr;
}
