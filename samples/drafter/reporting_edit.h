// An edit control that tells its dialog when its text becomes valid or invalid; CFieldsDialog marks it then.
#pragma once

#include <ktui/ktui.h>

template <class Edit>
class CReportingEdit : public Edit {
protected:
    KBUI_REPLY DoKbUiMessage(KBUI_NOTIFY notification, unsigned id, __int64 datum) override {
        if (notification != kKbUiNotifyControlValid && notification != kKbUiNotifyControlInvalid)
            return Edit::DoKbUiMessage(notification, id, datum);
        // The dialog offers the message to this very control first, which leaves it to the dialog then.
        if (m_reporting) return kKbUiReplyNone;
        m_reporting = true;
        const KBUI_REPLY reply =
            KbUiNotify(this->GetParent(), id, notification, notification == kKbUiNotifyControlValid);
        m_reporting = false;
        return reply;
    }

private:
    bool m_reporting = false;
};
