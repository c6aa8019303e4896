#include "platform/local_socket.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

bool AddressOf(const std::string& path, sockaddr_un& address) {
  if (path.empty() || path.size() > LocalSocketPathMax()) return false;
  address = {};
  address.sun_family = AF_UNIX;
  std::memcpy(address.sun_path, path.data(), path.size());
  return true;
}

}  // namespace

std::size_t LocalSocketPathMax() { return sizeof(sockaddr_un::sun_path) - 1; }

cSocketFd& cSocketFd::operator=(cSocketFd&& other) noexcept {
  if (this != &other) {
    Close();
    m_fd = other.m_fd;
    other.m_fd = -1;
  }
  return *this;
}

void cSocketFd::Close() {
  if (m_fd >= 0) ::close(m_fd);
  m_fd = -1;
}

cSocketFd ListenLocal(const std::string& path) {
  sockaddr_un address;
  if (!AddressOf(path, address)) return cSocketFd();
  cSocketFd socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  if (!socket.Valid()) return socket;
  // Only a socket is replaced, never a file that happens to bear the name.
  struct stat st {};
  if (::lstat(path.c_str(), &st) == 0 && S_ISSOCK(st.st_mode)) ::unlink(path.c_str());
  if (::bind(socket.Get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
      ::listen(socket.Get(), 8) != 0)
    socket.Close();
  return socket;
}

cSocketFd AcceptLocal(const cSocketFd& listener) {
  if (!listener.Valid()) return cSocketFd();
  for (;;) {
    int fd = ::accept4(listener.Get(), nullptr, nullptr, SOCK_CLOEXEC);
    if (fd < 0 && errno == EINTR) continue;
    return cSocketFd(fd);
  }
}

cSocketFd ConnectLocal(const std::string& path) {
  sockaddr_un address;
  if (!AddressOf(path, address)) return cSocketFd();
  cSocketFd socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (socket.Valid() && ::connect(socket.Get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
    socket.Close();
  return socket;
}

bool ReceiveExact(const cSocketFd& socket, void* data, std::size_t size, int timeoutMs) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(timeoutMs);
  auto* to = static_cast<unsigned char*>(data);
  std::size_t done = 0;
  while (done < size) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    if (left < 0) return false;
    pollfd p{socket.Get(), POLLIN, 0};
    int ready = ::poll(&p, 1, static_cast<int>(left));
    if (ready < 0 && errno == EINTR) continue;
    if (ready <= 0) return false;
    ssize_t n = ::recv(socket.Get(), to + done, size - done, MSG_DONTWAIT);
    if (n < 0 && (errno == EINTR || errno == EAGAIN)) continue;
    if (n <= 0) return false;
    done += static_cast<std::size_t>(n);
  }
  return true;
}

bool SendAll(const cSocketFd& socket, const void* data, std::size_t size) {
  const auto* from = static_cast<const unsigned char*>(data);
  std::size_t done = 0;
  while (done < size) {
    ssize_t n = ::send(socket.Get(), from + done, size - done, MSG_NOSIGNAL);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    done += static_cast<std::size_t>(n);
  }
  return true;
}
