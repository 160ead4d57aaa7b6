// The dialog that asks which kind of document to make.
#pragma once

#include <vector>

#include <kmfc/dialog.h>

class CDocTemplate;

namespace kmfc {

/// Lists the templates by their names for File New, the first chosen.
class NewKindDialog : public CDialog {
public:
    explicit NewKindDialog(std::vector<CDocTemplate*> kinds);

    /// After DoModal answered IDOK.
    CDocTemplate* chosen() const { return m_chosen; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    std::vector<CDocTemplate*> m_kinds;
    CDocTemplate* m_chosen = nullptr;

    DECLARE_MESSAGE_MAP()
};

}  // namespace kmfc
