#include "platform/file_io.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Opens a regular file to be read front to back: its descriptor and size, or -1.
int OpenForSequentialRead(const std::filesystem::path& path, std::size_t& size) {
  int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return -1;
  struct stat st {};
  if (::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
    ::close(fd);
    return -1;
  }
  ::posix_fadvise(fd, 0, 0, POSIX_FADV_SEQUENTIAL);
  size = static_cast<std::size_t>(st.st_size);
  return fd;
}

}  // namespace

bool ReadWholeFile(const std::filesystem::path& path, std::vector<unsigned char>& out) {
  std::size_t size = 0;
  int fd = OpenForSequentialRead(path, size);
  if (fd < 0) return false;
  // Read straight into the buffer, sized from the file. Once it is full, a small probe
  // finds the end; a file that grew meanwhile is read on from there.
  std::vector<unsigned char> data(size);
  std::size_t filled = 0;
  unsigned char probe[4096];
  for (;;) {
    const bool full = filled == data.size();
    ssize_t n = full ? ::read(fd, probe, sizeof probe) : ::read(fd, data.data() + filled, data.size() - filled);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) {
      ::close(fd);
      return false;
    }
    if (n == 0) break;
    if (full) data.insert(data.end(), probe, probe + n);
    filled += static_cast<std::size_t>(n);
  }
  ::close(fd);
  out = std::move(data);
  return true;
}

cFileReader::~cFileReader() {
  if (m_fd >= 0) ::close(m_fd);
}

bool cFileReader::Open(const std::filesystem::path& path) {
  std::size_t size = 0;
  int fd = OpenForSequentialRead(path, size);
  if (fd < 0) return false;
  if (m_fd >= 0) ::close(m_fd);
  m_fd = fd;
  m_size = size;
  return true;
}

long long cFileReader::ReadSome(void* data, std::size_t size) {
  if (m_fd < 0) return -1;
  for (;;) {
    ssize_t n = ::read(m_fd, data, size);
    if (n < 0 && errno == EINTR) continue;
    return n < 0 ? -1 : static_cast<long long>(n);
  }
}

cAtomicFile::~cAtomicFile() { Abort(); }

bool cAtomicFile::Create(const std::filesystem::path& target) {
  Abort();
  m_target = target;
  std::filesystem::path dir = target.parent_path();
  if (dir.empty()) dir = ".";
  std::string hidden = target.filename().string();
  hidden.insert(0, 1, '.');
  hidden.append(".XXXXXX");
  std::string pattern = (dir / hidden).string();
  int fd = ::mkstemp(pattern.data());
  if (fd < 0) return false;
  // mkstemp makes the file private; a saved project file gets the usual permissions.
  mode_t mask = ::umask(0);
  ::umask(mask);
  ::fchmod(fd, 0666 & ~mask);
  m_fd = fd;
  m_tempPath = pattern;
  m_bWriteFailed = false;
  return true;
}

bool cAtomicFile::Write(const void* data, std::size_t size) {
  if (m_fd < 0 || m_bWriteFailed) return false;
  const char* p = static_cast<const char*>(data);
  while (size > 0) {
    ssize_t n = ::write(m_fd, p, size);
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      m_bWriteFailed = true;
      return false;
    }
    p += n;
    size -= static_cast<std::size_t>(n);
  }
  return true;
}

bool cAtomicFile::Commit() {
  if (m_fd < 0) return false;
  bool ok = !m_bWriteFailed && ::fsync(m_fd) == 0;
  ok = (::close(m_fd) == 0) && ok;
  m_fd = -1;
  if (ok) ok = ::rename(m_tempPath.c_str(), m_target.c_str()) == 0;
  if (!ok) ::unlink(m_tempPath.c_str());
  m_tempPath.clear();
  return ok;
}

void cAtomicFile::Abort() {
  if (m_fd < 0) return;
  ::close(m_fd);
  ::unlink(m_tempPath.c_str());
  m_fd = -1;
  m_tempPath.clear();
}

bool WriteFileAtomic(const std::filesystem::path& target, const void* data, std::size_t size) {
  cAtomicFile file;
  return file.Create(target) && file.Write(data, size) && file.Commit();
}
