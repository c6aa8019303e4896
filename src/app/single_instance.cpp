#include "app/single_instance.h"

#include "platform/diagnostics.h"
#include "platform/cp932.h"

bool PassSingleInstance(cInstanceLock& lock, std::string_view name) {
  if (!lock.Acquire(name)) return true;
  int answer = MesBox(nullptr, CP932_TEXT("既に起動しています。\n二重起動しますか？  ※非推奨。データの上書き保存に注意！\n"),
                      CP932_TEXT("二重起動"), MB_YESNO);
  if (answer == IDYES) return true;
  lock.Release();
  return false;
}
