#pragma once
#include <string_view>

#include "platform/instance_lock.h"

constexpr const char* kInstanceLockName = "Ortalune_Editor";

// Takes the lock of `name`. When another instance holds it the user is asked whether
// to start a second one anyway; on No the lock is given back and the result is false.
// Nothing else protects the data of two instances.
bool PassSingleInstance(cInstanceLock& lock, std::string_view name = kInstanceLockName);
