// owl/control.h
//
// The base of controls: a child that takes part in the transfer of data and stands among the tab stops. A
// control that a dialog's resource makes is taken over by its id; one made in code is created with its
// parent.
#pragma once

#include "owl/window.h"

namespace owl {

class OWL_EXPORT TControl : virtual public TWindow {
public:
    /// Made in code: pixels of the parent's client area. A null title is an empty one.
    TControl(TWindow* parent, int id, const char* title, int x, int y, int w, int h,
             TModule* module = nullptr);
    /// The control `resourceId` of a dialog's resource.
    explicit TControl(TWindow* parent, int resourceId, TModule* module = nullptr);
    ~TControl() override;

protected:
    TControl();
    void Init(TWindow* parent, int id, const char* title, int x, int y, int w, int h, TModule* module);
    void Init(TWindow* parent, int resourceId, TModule* module);
};

}  // namespace owl
