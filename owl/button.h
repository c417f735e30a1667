// owl/button.h
//
// Push buttons, check boxes, radio buttons and the frames around them. Pressed, each is a command of its id.
#pragma once

#include "owl/control.h"

namespace owl {

class OWL_EXPORT TButton : public TControl {
public:
    TButton(TWindow* parent, int id, const char* text, int x, int y, int w, int h, bool isDefault = false,
            TModule* module = nullptr);
    explicit TButton(TWindow* parent, int resourceId, TModule* module = nullptr);
    ~TButton() override;

    /// Transfers nothing.
    unsigned Transfer(void* buffer, TTransferDirection direction) override;

protected:
    const char* GetClassName() override;
};

/// A box that is checked or not; one with three states is made by its resource or by Attr.Style.
class OWL_EXPORT TCheckBox : public TButton {
public:
    TCheckBox(TWindow* parent, int id, const char* text, int x, int y, int w, int h,
              TModule* module = nullptr);
    explicit TCheckBox(TWindow* parent, int resourceId, TModule* module = nullptr);
    ~TCheckBox() override;

    /// BST_UNCHECKED, BST_CHECKED or BST_INDETERMINATE.
    UINT GetCheck() const;
    void SetCheck(UINT check);
    void Check() { SetCheck(BST_CHECKED); }
    void Uncheck() { SetCheck(BST_UNCHECKED); }
    void Toggle();

    /// 16 bits with what GetCheck says.
    unsigned Transfer(void* buffer, TTransferDirection direction) override;
};

/// One of several, of which the system keeps one checked: a group begins with the style WS_GROUP.
class OWL_EXPORT TRadioButton : public TCheckBox {
public:
    TRadioButton(TWindow* parent, int id, const char* text, int x, int y, int w, int h,
                 TModule* module = nullptr);
    explicit TRadioButton(TWindow* parent, int resourceId, TModule* module = nullptr);
    ~TRadioButton() override;
};

/// A frame with a title around other controls.
class OWL_EXPORT TGroupBox : public TButton {
public:
    TGroupBox(TWindow* parent, int id, const char* text, int x, int y, int w, int h,
              TModule* module = nullptr);
    explicit TGroupBox(TWindow* parent, int resourceId, TModule* module = nullptr);
    ~TGroupBox() override;
};

}  // namespace owl
