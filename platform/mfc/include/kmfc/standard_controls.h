// The controls of USER: static, button, edit, list box, list of checks, combo box, scroll bar.
#pragma once

#include <kmfc/button.h>
#include <kmfc/check_list_box.h>
#include <kmfc/combo_box.h>
#include <kmfc/edit.h>
#include <kmfc/list_box.h>
#include <kmfc/scroll_bar.h>
#include <kmfc/static.h>
