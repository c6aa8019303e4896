#include "platform/main_window_link.h"

bool g_bRunEnding = false;

namespace {
MainWindowHandler g_pfnPostClose = nullptr;
MainWindowHandler g_pfnDestroy = nullptr;
}  // namespace

void SetMainWindowHandlers(MainWindowHandler postClose, MainWindowHandler destroy) {
  g_pfnPostClose = postClose;
  g_pfnDestroy = destroy;
}

void PostMainWindowClose() {
  g_bRunEnding = true;
  if (g_pfnPostClose != nullptr) g_pfnPostClose();
}

void DestroyMainWindow() {
  g_bRunEnding = true;
  if (g_pfnDestroy != nullptr) g_pfnDestroy();
}
