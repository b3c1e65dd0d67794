#include "host/running_application.h"

#include <utility>

namespace host {
namespace {

HostApplication*& current() {
  static HostApplication* application = nullptr;
  return application;
}

}  // namespace

HostApplication* running_application() { return current(); }

RunningApplication::RunningApplication(HostApplication& application)
    : m_before(std::exchange(current(), &application)) {}

RunningApplication::~RunningApplication() { current() = m_before; }

}  // namespace host
