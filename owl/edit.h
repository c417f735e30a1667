// owl/edit.h
//
// A field to type in.
#pragma once

#include "owl/static.h"

namespace owl {

class OWL_EXPORT TEdit : public TStatic {
public:
    /// With a `textLimit` not 0 no more than that less one bytes can be typed. A multi-line field has scroll
    /// bars, and Enter is typed into it.
    TEdit(TWindow* parent, int id, const char* text, int x, int y, int w, int h, unsigned textLimit = 0,
          bool multiline = false, TModule* module = nullptr);
    explicit TEdit(TWindow* parent, int resourceId, unsigned textLimit = 0, TModule* module = nullptr);
    ~TEdit() override;

    void SetupWindow() override;

    /// The bytes from `start` up to but without `end` are selected.
    void GetSelection(int& start, int& end) const;
    /// 0 and -1 select all. False without a window.
    bool SetSelection(int start, int end);
    /// Puts `text` in place of the selection.
    void Insert(const char* text);
    void DeleteSelection();
    void Cut();
    void Copy();
    void Paste();
    void Undo();
    bool CanUndo() const;
    bool IsModified() const;
    void ClearModify();
    int GetNumLines() const;

protected:
    const char* GetClassName() override;
};

}  // namespace owl
