#pragma once
// The project's saved sets of move rules and what the enemy form's template buttons do
// with them. Templates are project data: they are saved the moment they change, and
// nothing of them enters a stage's undo history.

#include "database/move_ai.h"
#include "kernel/vector_class.h"

constexpr int kMaxMoveAITemplates = 999;

// "↓選択したテンプレートを読込": `rules` becomes a copy of template `chosen`'s rules.
// No template chosen (-1, or past the list): the message, and false. Rules that would be
// lost are first asked about; false on no.
bool LoadMoveAITemplate(int chosen, VECTOR_CLASS<cMoveAI>& rules);

// "↑現在の設定を選択したテンプレートに上書き保存": asks by the template's name, and on yes
// its rules become a copy of `rules` and the templates are saved. False when nothing
// changed.
bool OverwriteMoveAITemplate(int chosen, const VECTOR_CLASS<cMoveAI>& rules);

// "↑現在の設定をテンプレートとして新規保存": `copy` becomes a working copy of the templates
// with a new last one that holds `rules`, for the template form to name. False, and
// `copy` untouched, at the limit of templates (with the message) or for no rules.
bool StartMoveAITemplate(const VECTOR_CLASS<cMoveAI>& rules, VECTOR_CLASS<cMoveAITemplate>& copy);

// The template form's OK: `copy` becomes the project's templates, saved at once. 1 when
// the file was written.
int StoreMoveAITemplates(const VECTOR_CLASS<cMoveAITemplate>& copy);
