#include "app/test_play_link.h"

#include <array>
#include <cstdio>
#include <unistd.h>

#include "app/test_play.h"
#include "platform/runtime_path.h"

namespace fs = std::filesystem;

namespace {

using cWords = std::array<unsigned char, 12>;

void PutWord(unsigned char* at, std::uint32_t value) {
  for (int i = 0; i < 4; ++i) at[i] = static_cast<unsigned char>(value >> (8 * i));
}

std::uint32_t WordAt(const unsigned char* at) {
  return at[0] | (std::uint32_t{at[1]} << 8) | (std::uint32_t{at[2]} << 16) | (std::uint32_t{at[3]} << 24);
}

// A size word and the bytes it counts.
bool SendSized(const cSocketFd& socket, std::string_view data) {
  unsigned char size[4];
  PutWord(size, static_cast<std::uint32_t>(data.size()));
  return SendAll(socket, size, sizeof size) && SendAll(socket, data.data(), data.size());
}

bool ReceiveSized(const cSocketFd& socket, std::uint32_t size, std::string& data) {
  if (size > kLinkMaxData) return false;
  data.assign(size, '\0');
  return ReceiveExact(socket, data.data(), size, kLinkWaitMs);
}

bool SendRequest(const cSocketFd& socket, std::uint32_t kind, std::uint32_t dwData, std::string_view data) {
  unsigned char head[8];
  PutWord(head, kind);
  PutWord(head + 4, dwData);
  return SendAll(socket, head, sizeof head) && SendSized(socket, data);
}

cSocketFd ConnectHere() {
  std::error_code ec;
  return ConnectLocal(TestPlaySocketPath(fs::current_path(ec)));
}

// One request of one connection; a connection that says nothing sensible is dropped.
void ServeOne(const cSocketFd& socket) {
  cWords words;
  std::string data;
  if (!ReceiveExact(socket, words.data(), words.size(), kLinkWaitMs) ||
      !ReceiveSized(socket, WordAt(&words[8]), data))
    return;
  switch (WordAt(&words[0])) {
    case kLinkCopyData: OnGameEnded({WordAt(&words[4]), std::move(data)}); break;
    case kLinkStartStage: SendSized(socket, g_strTestPlayStage); break;
    default: break;
  }
}

}  // namespace

std::string TestPlaySocketPath(const fs::path& projectDir) {
  std::error_code ec;
  fs::path canonical = fs::weakly_canonical(projectDir, ec);
  const std::string key = (ec ? projectDir : canonical).string();
  std::uint64_t hash = 0xcbf29ce484222325ull;  // FNV-1a: short, stable, the same in both programs
  for (unsigned char c : key) hash = (hash ^ c) * 0x100000001b3ull;
  char name[40];
  std::snprintf(name, sizeof name, "ortalune-game-%016llx", static_cast<unsigned long long>(hash));
  return RuntimeFilePath(name, ".sock", LocalSocketPathMax());
}

cTestPlayListener::~cTestPlayListener() {
  if (m_Socket.Valid()) ::unlink(m_strPath.c_str());
}

bool cTestPlayListener::Listen() {
  std::error_code ec;
  m_strPath = TestPlaySocketPath(fs::current_path(ec));
  m_Socket = ListenLocal(m_strPath);
  return m_Socket.Valid();
}

int cTestPlayListener::Serve() {
  int served = 0;
  for (cSocketFd connection = AcceptLocal(m_Socket); connection.Valid(); connection = AcceptLocal(m_Socket)) {
    ServeOne(connection);
    ++served;
  }
  return served;
}

bool SendCopyData(std::uint32_t dwData, std::string_view data) {
  cSocketFd socket = ConnectHere();
  return socket.Valid() && SendRequest(socket, kLinkCopyData, dwData, data);
}

bool AskStartStage(std::string& stored) {
  cSocketFd socket = ConnectHere();
  unsigned char size[4];
  if (!socket.Valid() || !SendRequest(socket, kLinkStartStage, 0, {}) ||
      !ReceiveExact(socket, size, sizeof size, kLinkWaitMs))
    return false;
  return ReceiveSized(socket, WordAt(size), stored);
}
