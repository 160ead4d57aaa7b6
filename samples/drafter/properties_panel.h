// The properties palette: the properties of the selection, or the current settings, without a dialog. What is
// picked is written at once, what is typed when the field is left or with Enter; Escape gives the former
// value back. A bad value is marked, said, and not written. Each change is a step of Undo.
#pragma once

#include <functional>

#include "property_fields.h"

class CPropertiesPanel : public CPropertyFields {
    DECLARE_DYNAMIC(CPropertiesPanel)

public:
    /// `changed` is called when the panel has changed the drawing, with the name of what was changed: a
    /// string. It shows the values anew.
    explicit CPropertiesPanel(std::function<void(UINT name)> changed);

    /// Shows the values of `objects`, or the current settings without objects. The drawing must live until
    /// another one is shown.
    void Show(OdDbDatabase& drawing, std::vector<OdDbObjectId> objects);
    /// No drawing is open: nothing is shown, and nothing can be entered.
    void ShowNothing();
    /// Writes what is being typed, as leaving the field does.
    void TakeTyped();

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override;
    void OnCancel() override;
    void Apply() override {}

private:
    void write(UINT control);
    void showTitle();
    void enableFields(bool enable);

    std::function<void(UINT name)> m_changed;
    OdDbDatabase* m_drawing = nullptr;
    std::vector<OdDbObjectId> m_objects;
    bool m_isBusy = false;  ///< values are being shown or written, which is no choice of the user
};
