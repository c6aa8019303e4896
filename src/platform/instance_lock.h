#pragma once
// A named lock held for the life of a process, telling a second start that another
// instance of the same user runs.

#include <string>
#include <string_view>

class cInstanceLock {
 public:
  cInstanceLock() = default;
  ~cInstanceLock() { Release(); }
  cInstanceLock(const cInstanceLock&) = delete;
  cInstanceLock& operator=(const cInstanceLock&) = delete;

  // Takes the lock named `name`. Returns true when another holder already had it; the
  // caller then decides whether to go on anyway (nothing else protects the data).
  bool Acquire(std::string_view name);
  void Release();

  // Where the lock of `name` lives: the user's runtime directory, else the temporary one.
  static std::string LockPathOf(std::string_view name);

 private:
  int m_fd = -1;
};
