// Undo and Redo in the menu: the name of the step that comes next, or the plain, greyed command.
#pragma once

#include <afxwin.h>

#include "undo_history.h"

void ShowUndoStep(CCmdUI& item, const CUndoHistory& history);
void ShowRedoStep(CCmdUI& item, const CUndoHistory& history);
