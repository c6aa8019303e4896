#include "stage/edit_state.h"

cEditState g_EditState;
