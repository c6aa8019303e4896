#include "editor/idle_timer.h"

#include <QGuiApplication>

#include "app/app_frame.h"
#include "app/idle_frame.h"

cIdleTimer* g_pIdleTimer = nullptr;

cIdleTimer::cIdleTimer() {
  g_pIdleTimer = this;
  m_Timer.setInterval(kIdleFrameMs);
  m_Timer.setTimerType(Qt::PreciseTimer);
  QObject::connect(&m_Timer, &QTimer::timeout, [this] {
    IdleFrame();
    Reconsider();  // a frame may have closed the last preview
  });
  if (auto* app = qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
    m_StateLink = QObject::connect(app, &QGuiApplication::applicationStateChanged,
                                   [this](Qt::ApplicationState state) { OnApplicationStateChanged(state); });
    g_bAppActive = QGuiApplication::applicationState() == Qt::ApplicationActive;
  }
}

cIdleTimer::~cIdleTimer() {
  QObject::disconnect(m_StateLink);
  if (g_pIdleTimer == this) g_pIdleTimer = nullptr;
}

void cIdleTimer::Reconsider() {
  bool wanted = IdleFramesWantedNow();
  if (wanted && !m_Timer.isActive()) m_Timer.start();
  if (!wanted && m_Timer.isActive()) m_Timer.stop();
}

void cIdleTimer::OnApplicationStateChanged(Qt::ApplicationState state) {
  g_bAppActive = state == Qt::ApplicationActive;
  Reconsider();
}

void ReconsiderIdleFrames() {
  if (g_pIdleTimer != nullptr) g_pIdleTimer->Reconsider();
}
