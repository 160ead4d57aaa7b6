// What a dialog is told about the controls that follow a change of its size.
#pragma once

/// What a registration does to its control.
enum KBUI_ELASTIC_KIND : unsigned {
    kKbUiMoveX = 1,
    kKbUiMoveY = 2,
    kKbUiMoveXY = 3,
    kKbUiStretchX = 16,
    kKbUiStretchY = 32,
    kKbUiStretchXY = 48
};

/// One record of a batch registration, which has one percentage only.
struct _dlgControlTag {
    unsigned m_id;
    unsigned m_kind;
    long m_percent;
};
