#pragma once

#define IDD_BUTTONS 200
#define IDC_NAMED 201
#define IDC_PICK 202
#define IDC_SELECT 203
#define IDC_PICTURE 204
#define IDC_SITE 205
