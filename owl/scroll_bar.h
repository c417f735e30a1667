// owl/scroll_bar.h
//
// A scroll bar that stands by itself. It moves its thumb as the user says; its parent is told each code
// afterwards and reads the position.
#pragma once

#include "owl/control.h"

namespace owl {

/// What a scroll bar transfers.
struct TScrollBarData {
    int LowValue = 0;
    int HighValue = 0;
    int Position = 0;
};

class OWL_EXPORT TScrollBar : public TControl {
public:
    /// A `w` or `h` of 0 across the bar is the system's usual thickness.
    TScrollBar(TWindow* parent, int id, int x, int y, int w, int h, bool horizontal,
               TModule* module = nullptr);
    explicit TScrollBar(TWindow* parent, int resourceId, TModule* module = nullptr);
    ~TScrollBar() override;

    void GetRange(int& low, int& high) const;
    virtual void SetRange(int low, int high, bool redraw = true);
    int GetPosition() const;
    /// Beyond the range it is the range's end.
    virtual void SetPosition(int position, bool redraw = true);
    /// Moves the thumb by `delta`; returns the new position.
    int DeltaPos(int delta);
    /// How far an arrow moves the thumb, 1 at first, and the area beside the thumb, 10 at first.
    int LineMagnitude = 1;
    int PageMagnitude = 10;

    /// A TScrollBarData.
    unsigned Transfer(void* buffer, TTransferDirection direction) override;

protected:
    const char* GetClassName() override;

    void SBLineUp();
    void SBLineDown();
    void SBPageUp();
    void SBPageDown();
    void SBThumbPosition();
    void SBTop();
    void SBBottom();

private:
    int TrackPosition() const;

    DECLARE_RESPONSE_TABLE(TScrollBar);
};

}  // namespace owl
