// Buttons of pane captions.
#pragma once

#include <afxwin.h>

#include <kmfc/caption_button.h>
