#pragma once
// The clock of the idle frame: a 50 ms timer that exists only while frames are wanted
// (an animated preview shown, the application active, no test play). Otherwise the
// process sleeps in the event loop.

#include <QTimer>

class cIdleTimer {
 public:
  cIdleTimer();
  ~cIdleTimer();

  // Starts or stops the timer after anything that decides about frames changed.
  void Reconsider();
  // The application came to the foreground or left it.
  void OnApplicationStateChanged(Qt::ApplicationState state);
  bool Running() const { return m_Timer.isActive(); }

 private:
  QTimer m_Timer;
  QMetaObject::Connection m_StateLink;
};

// The editor's one idle timer, or null.
extern cIdleTimer* g_pIdleTimer;
// For the forms: an animated preview was shown or hidden, or a test play began or ended.
void ReconsiderIdleFrames();
