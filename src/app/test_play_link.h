#pragma once
// The line between the editor and the game program it started: a local socket whose
// name comes from the project's directory, which the game shares with the editor as
// its current directory. Each connection carries one request, in little-endian words:
//
//   u32 kind, u32 dwData, u32 size, then `size` bytes of data
//
//   kind 1  the copy-data message. dwData 0: the game has ended. Nothing is answered.
//   kind 2  the stage to start on (dwData and size 0). The answer is u32 size and the
//           stage file's stored path (CP932, "\" between components, relative to the
//           project), or size 0 when the test started without a stage.

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/local_socket.h"

enum : std::uint32_t { kLinkCopyData = 1, kLinkStartStage = 2 };
// A request's data is small; more than this is no game program speaking.
constexpr std::uint32_t kLinkMaxData = 64 * 1024;
// How long either side waits for the other's bytes once connected.
constexpr int kLinkWaitMs = 2000;

// The socket of the project in `projectDir`.
std::string TestPlaySocketPath(const std::filesystem::path& projectDir);

// The editor's side: listens for the project in the current directory for as long as
// it lives, and answers what arrives.
class cTestPlayListener {
 public:
  ~cTestPlayListener();
  bool Listen();
  // The descriptor to watch for waiting connections.
  int Fd() const { return m_Socket.Get(); }
  const std::string& Path() const { return m_strPath; }
  // Serves every connection waiting now: the copy-data message goes to OnGameEnded, the
  // stage question is answered from the running test. How many were served.
  int Serve();

 private:
  cSocketFd m_Socket;
  std::string m_strPath;
};

// The game's side, from the project directory the editor started it in. False when no
// editor listens or it did not answer.
bool SendCopyData(std::uint32_t dwData, std::string_view data);
bool AskStartStage(std::string& stored);
