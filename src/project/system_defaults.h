#pragma once
// The default tables of the game-wide settings, in CP932: what a new project holds and
// what the migrations of old files fill in.

#include <span>
#include <string>
#include <vector>

#include "project/system.h"

// The 55 terms in row order.
const std::vector<std::string>& DefaultSystemTerms();

// One game menu and the names of its commands in a new project.
struct cDefaultMenu {
  VECTOR_CLASS<cCmd> cSystem::*menu;
  std::vector<std::string> names;
};
// The sixteen menus in stream order.
std::span<const cDefaultMenu> DefaultSystemMenus();

// The twelve status values: the nine status values, level, experience, movement.
VECTOR_CLASS<cParamInfo> DefaultSystemParams();
