#pragma once
// Sets the process's C locale for the life of the object and puts the
// previous one back, so a test that needs a locale leaves none behind.
#include <clocale>
#include <string>

class ScopedLocale {
 public:
  explicit ScopedLocale(const char* name) : previous_(std::setlocale(LC_ALL, nullptr)) {
    applied_ = std::setlocale(LC_ALL, name) != nullptr;
  }
  ~ScopedLocale() { std::setlocale(LC_ALL, previous_.c_str()); }
  ScopedLocale(const ScopedLocale&) = delete;
  ScopedLocale& operator=(const ScopedLocale&) = delete;

  // False if the system does not have the locale; the old one then stays.
  bool applied() const { return applied_; }

 private:
  std::string previous_;
  bool applied_;
};
