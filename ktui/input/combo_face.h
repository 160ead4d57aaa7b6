// Which states the closed face of an owner-drawn drop-down list shows.
//
// Without any window, so that each state can be told and tested by itself.
//
// Private to the library; its tests link it by itself.
#pragma once

/// What is known of the control at the moment it is painted.
struct ComboCondition {
    bool disabled;
    bool droppedDown;
    bool pressed;      ///< the drop-down button is held down
    bool underCursor;  ///< the window under the cursor is the control
};

/// State of the theme's face part, and the item state that the face is drawn with.
struct ComboFace {
    int partState;
    unsigned itemState;
};

// Parts and states of the theme class "COMBOBOX".
constexpr int kComboReadOnlyPart = 5;
constexpr int kComboButtonPart = 6;
constexpr int kComboNormal = 1;
constexpr int kComboHot = 2;
constexpr int kComboPressed = 3;
constexpr int kComboDisabled = 4;

// Item states, with the values that the platform gives them.
constexpr unsigned kItemSelected = 0x0001;
constexpr unsigned kItemDisabled = 0x0004;
constexpr unsigned kItemHotLight = 0x0040;
constexpr unsigned kItemInEdit = 0x1000;

/// The face for `condition`; the first member that is set decides.
ComboFace ChooseComboFace(const ComboCondition& condition);

/// True for an item state that belongs to the closed face and to nothing else: 0, or exactly the edit state.
constexpr bool IsFaceItemState(unsigned itemState) { return itemState == 0 || itemState == kItemInEdit; }
