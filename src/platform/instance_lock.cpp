#include "platform/instance_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "platform/runtime_path.h"

std::string cInstanceLock::LockPathOf(std::string_view name) { return RuntimeFilePath(name, ".lock"); }

bool cInstanceLock::Acquire(std::string_view name) {
  Release();
  std::string path = LockPathOf(name);
  int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (fd < 0) return false;  // No lock to be had: behave as the first instance.
  // Every instance holds a shared lock for its whole life, so the name exists while any
  // instance runs. Only when nobody holds it can the exclusive lock be had.
  bool existed = ::flock(fd, LOCK_EX | LOCK_NB) != 0;
  for (int attempt = 0; attempt < 50; ++attempt) {
    if (::flock(fd, LOCK_SH | LOCK_NB) == 0) break;
    ::usleep(1000);  // another start is between its exclusive test and its shared lock
  }
  m_fd = fd;
  return existed;
}

void cInstanceLock::Release() {
  if (m_fd < 0) return;
  ::close(m_fd);
  m_fd = -1;
}
