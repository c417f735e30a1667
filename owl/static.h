// owl/static.h
//
// A label. Also what it has in common with an edit field: a text with a limit, which is what it transfers.
#pragma once

#include "owl/control.h"

namespace owl {

class OWL_EXPORT TStatic : public TControl {
public:
    /// `textLimit` is the size of the text in a transfer, with its NUL; 0 transfers nothing.
    TStatic(TWindow* parent, int id, const char* title, int x, int y, int w, int h, unsigned textLimit = 0,
            TModule* module = nullptr);
    explicit TStatic(TWindow* parent, int resourceId, unsigned textLimit = 0, TModule* module = nullptr);
    ~TStatic() override;

    unsigned GetTextLimit() const { return m_textLimit; }
    int GetTextLen() const { return GetWindowTextLength(); }
    /// As TWindow::GetWindowText.
    int GetText(char* text, int size) const { return GetWindowText(text, size); }
    void SetText(const char* text);
    virtual void Clear();

    /// `GetTextLimit()` bytes, a text and its NUL; what is longer is cut.
    unsigned Transfer(void* buffer, TTransferDirection direction) override;

protected:
    const char* GetClassName() override;

private:
    unsigned m_textLimit;
};

}  // namespace owl
