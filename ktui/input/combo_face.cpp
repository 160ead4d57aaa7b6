#include <ktui/input/combo_face.h>

ComboFace ChooseComboFace(const ComboCondition& condition) {
    if (condition.disabled) return {kComboDisabled, kItemInEdit | kItemDisabled};
    if (condition.droppedDown || condition.pressed) return {kComboPressed, kItemInEdit | kItemSelected};
    if (condition.underCursor) return {kComboHot, kItemInEdit | kItemHotLight};
    return {kComboNormal, kItemInEdit};
}
