#pragma once
// Stream sockets between processes of this machine, named by a file path. Every
// descriptor here closes on exec, so a started program inherits none of them.

#include <cstddef>
#include <string>

// The longest path a socket can be named by.
std::size_t LocalSocketPathMax();

// A descriptor that closes when it goes.
class cSocketFd {
 public:
  explicit cSocketFd(int fd = -1) : m_fd(fd) {}
  ~cSocketFd() { Close(); }
  cSocketFd(cSocketFd&& other) noexcept : m_fd(other.m_fd) { other.m_fd = -1; }
  cSocketFd& operator=(cSocketFd&& other) noexcept;
  cSocketFd(const cSocketFd&) = delete;
  cSocketFd& operator=(const cSocketFd&) = delete;
  int Get() const { return m_fd; }
  bool Valid() const { return m_fd >= 0; }
  void Close();

 private:
  int m_fd;
};

// Listens at `path`, replacing whatever socket a process that ended left there. The
// socket does not block: AcceptLocal returns at once.
cSocketFd ListenLocal(const std::string& path);
// A connection that waits on `listener`; not valid when none waits.
cSocketFd AcceptLocal(const cSocketFd& listener);
// Not valid when nobody listens at `path`.
cSocketFd ConnectLocal(const std::string& path);

// Exactly `size` bytes, waiting at most `timeoutMs` for all of them together.
bool ReceiveExact(const cSocketFd& socket, void* data, std::size_t size, int timeoutMs);
bool SendAll(const cSocketFd& socket, const void* data, std::size_t size);
