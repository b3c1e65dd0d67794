#pragma once

#include <locale.h>

namespace dialogs {

/// Lets this thread speak as the user's system is set up, for as long as the guard lives. Who calls from
/// another module may have set anything.
class UserLocale {
 public:
  UserLocale();
  ~UserLocale();
  UserLocale(const UserLocale&) = delete;
  UserLocale& operator=(const UserLocale&) = delete;

 private:
  locale_t m_own;
  locale_t m_before = nullptr;
};

}  // namespace dialogs
