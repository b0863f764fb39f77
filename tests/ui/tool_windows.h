#pragma once
// The program's windows one by one, for the checks that every window must
// pass (it fits the screen, its inputs are named): each dialog tool made
// from a fresh model as the frame makes it.

#include <functional>

class QDialog;

// Calls `check` with each dialog tool in turn, loaded as the frame loads it.
void forEachDialogTool(const std::function<void(QDialog&)>& check);
