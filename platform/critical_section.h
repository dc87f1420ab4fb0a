#pragma once
#include <mutex>

namespace platform {

// A recursive lock: the same thread may enter again and must leave as often
// as it entered.
class CriticalSection {
 public:
  void Enter() { mutex_.lock(); }
  void Leave() { mutex_.unlock(); }
  bool TryEnter() { return mutex_.try_lock(); }

 private:
  std::recursive_mutex mutex_;
};

// Holds a critical section for a scope when asked to. The held flag lets a
// caller take the lock conditionally and still release it on unwinding.
class CriticalSectionGuard {
 public:
  CriticalSectionGuard(CriticalSection* section, bool take) : section_(section), held_(false) {
    if (take) {
      section_->Enter();
      held_ = true;
    }
  }
  ~CriticalSectionGuard() {
    if (held_) section_->Leave();
  }
  CriticalSectionGuard(const CriticalSectionGuard&) = delete;
  CriticalSectionGuard& operator=(const CriticalSectionGuard&) = delete;

 private:
  CriticalSection* section_;
  bool held_;
};

}  // namespace platform
