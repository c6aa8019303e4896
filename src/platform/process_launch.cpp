#include "platform/process_launch.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Reads the errno a failed exec wrote, or sees the pipe close when the exec worked.
bool ExecWorked(int fd, int& error) {
  for (;;) {
    ssize_t n = ::read(fd, &error, sizeof error);
    if (n < 0 && errno == EINTR) continue;
    return n == 0;
  }
}

}  // namespace

bool LaunchDetached(const std::filesystem::path& program, int* error) {
  int reason = 0;
  if (error == nullptr) error = &reason;
  // The pipe closes by itself when the exec succeeds; a failed one writes errno into it.
  int pipeFds[2];
  if (::pipe2(pipeFds, O_CLOEXEC) != 0) return *error = errno, false;
  const pid_t middle = ::fork();
  if (middle < 0) {
    *error = errno;
    ::close(pipeFds[0]);
    ::close(pipeFds[1]);
    return false;
  }
  if (middle == 0) {
    // The program is started by a child that ends at once, so that it belongs to
    // nobody here and its end leaves nothing for this process to collect.
    ::close(pipeFds[0]);
    const pid_t game = ::fork();
    if (game == 0) {
      char* const argv[] = {const_cast<char*>(program.c_str()), nullptr};
      ::execv(program.c_str(), argv);
      const int failed = errno;
      [[maybe_unused]] ssize_t written = ::write(pipeFds[1], &failed, sizeof failed);
      ::_exit(127);
    }
    if (game < 0) {
      const int failed = errno;
      [[maybe_unused]] ssize_t written = ::write(pipeFds[1], &failed, sizeof failed);
    }
    ::_exit(0);
  }
  ::close(pipeFds[1]);
  int status = 0;
  while (::waitpid(middle, &status, 0) < 0 && errno == EINTR) {
  }
  const bool worked = ExecWorked(pipeFds[0], *error);
  ::close(pipeFds[0]);
  return worked;
}
