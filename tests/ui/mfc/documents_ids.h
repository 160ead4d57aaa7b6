// Ids of the resources of the tests of documents, views and frames.
#ifndef KTUI_TESTS_DOCUMENTS_IDS_H
#define KTUI_TESTS_DOCUMENTS_IDS_H

#define IDR_MAIN 128
#define IDR_PLAN 129
#define IDR_NOTE 130
#define IDD_FORM 131
#define IDC_FORM_FIRST 1001
#define IDC_FORM_SECOND 1002
#define IDC_PLAN_COMMAND 32801
#define IDC_MAIN_COMMAND 32802

#endif
