#pragma once
// The editor's ear for the game program: the test play listener on the event loop, so
// that the game's messages are served whenever they arrive, modal forms included.

#include <QSocketNotifier>
#include <memory>

#include "app/test_play_link.h"

class cTestPlayWatch {
 public:
  // Listens for the project in the current directory; a failure goes to the report log
  // and leaves test plays without their end.
  cTestPlayWatch();
  ~cTestPlayWatch();
  bool Listening() const { return m_pNotifier != nullptr; }

 private:
  cTestPlayListener m_Listener;
  std::unique_ptr<QSocketNotifier> m_pNotifier;
};
