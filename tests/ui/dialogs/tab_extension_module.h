// What the test's extension module exports: a page of its own for a tabbed dialog.
#pragma once

class CKbUiTabChildDialog;
class CKbUiTabExtensionManager;

/// The page's only control.
constexpr int kExtensionEdit = 4001;
/// The template; no other module of the test has one by this number.
constexpr int kExtensionTemplate = 4000;

/// Exported as "addExtensionPage": adds the module's page if the dialog has the name `wanted`; the manager's
/// answer, or -1 for another dialog.
using AddExtensionPage = int (*)(CKbUiTabExtensionManager& manager, const wchar_t* wanted);
/// Exported as "extensionPage": the page, which the module keeps.
using ExtensionPage = CKbUiTabChildDialog* (*)();
/// Exported as "extensionCalls": what the page heard, each as a letter.
using ExtensionCalls = const char* (*)();
