#include "tests/mtext/small_stack.h"

#include <pthread.h>

#include <system_error>

namespace mtext_test {

namespace {

void* run(void* work) {
  (*static_cast<const std::function<void()>*>(work))();
  return nullptr;
}

void check(int error) {
  if (error != 0) throw std::system_error(error, std::generic_category());
}

}  // namespace

void on_small_stack(const std::function<void()>& work) {
  constexpr std::size_t stack_size = 256 * 1024;
  pthread_attr_t attributes;
  pthread_t thread;
  check(pthread_attr_init(&attributes));
  check(pthread_attr_setstacksize(&attributes, stack_size));
  check(pthread_create(&thread, &attributes, run, const_cast<std::function<void()>*>(&work)));
  check(pthread_join(thread, nullptr));
  check(pthread_attr_destroy(&attributes));
}

}  // namespace mtext_test
