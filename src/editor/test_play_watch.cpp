#include "editor/test_play_watch.h"

#include "editor/idle_timer.h"
#include "platform/diagnostics.h"

cTestPlayWatch::cTestPlayWatch() {
  if (!m_Listener.Listen()) {
    ReportLog("TestPlay : cannot listen at %s", m_Listener.Path().c_str());
    return;
  }
  m_pNotifier = std::make_unique<QSocketNotifier>(m_Listener.Fd(), QSocketNotifier::Read);
  QObject::connect(m_pNotifier.get(), &QSocketNotifier::activated, [this] {
    m_Listener.Serve();
    ReconsiderIdleFrames();  // a test that ended lets the previews move again
  });
}

cTestPlayWatch::~cTestPlayWatch() = default;
