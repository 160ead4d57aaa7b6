// Ids of pane_keys.rc: what is said and offered when the keyboard goes through the parts of a main window.
// Shared by the toolkit's code and the script; numbers are fixed.
#pragma once

#define IDS_PANE_KEYS_MIDDLE 54641
#define IDS_PANE_MENU_MOVE 54642
#define IDS_PANE_MENU_SIZE 54643
#define IDS_PANE_MENU_LEFT 54644
#define IDS_PANE_MENU_RIGHT 54645
#define IDS_PANE_MENU_BOTTOM 54646
#define IDS_PANE_MENU_FLOAT 54647
#define IDS_PANE_MENU_TAB_WITH 54648
#define IDS_PANE_MENU_AUTO_HIDE 54649
#define IDS_PANE_MENU_CLOSE 54650
#define IDS_PANE_MOVE_HINT 54651
#define IDS_PANE_SIZE_HINT 54652
