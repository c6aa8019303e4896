#pragma once
// The one-line texts of the event forms' lists: an action as its kind's label and an
// account of its slots, a page as its number of actions. CP932, appended to `out`.

#include <string>

#include "event/event.h"

void EventActRowText(std::string& out, int row, const cEventAct& act);
void EventPageRowText(std::string& out, int row, const cEventPage& page);
