// owl/combo_box.h
//
// A list with a field: always there, or dropped down. What TListBox says holds for its list.
#pragma once

#include "owl/list_box.h"

namespace owl {

class OWL_EXPORT TComboBox : public TListBox {
public:
    /// `style` is CBS_SIMPLE, CBS_DROPDOWN or CBS_DROPDOWNLIST and more; `h` is the height with the list
    /// open. With a `textLimit` not 0 no more than that less one bytes can be typed.
    TComboBox(TWindow* parent, int id, int x, int y, int w, int h, unsigned long style, unsigned textLimit,
              TModule* module = nullptr);
    explicit TComboBox(TWindow* parent, int resourceId, unsigned textLimit = 0, TModule* module = nullptr);
    ~TComboBox() override;

    void SetupWindow() override;

    int AddString(const char* text) override;
    int InsertString(const char* text, int index) override;
    int FindString(const char* text, int start = -1) const override;
    int DeleteString(int index) override;
    void ClearList() override;
    int GetCount() const override;
    int GetString(char* text, int index) const override;
    int GetStringLen(int index) const override;
    int GetSelIndex() const override;
    bool SetSelIndex(int index) override;
    int SetSelString(const char* text, int start = -1) override;
    LPARAM GetItemData(int index) const override;
    bool SetItemData(int index, LPARAM data) override;

    int GetTextLen() const { return GetWindowTextLength(); }
    int GetText(char* text, int size) const { return GetWindowText(text, size); }
    void SetText(const char* text);
    void ShowList(bool show = true);

protected:
    const char* GetClassName() override;
    void ReadSelection(TListBoxData& data) const override;
    void WriteSelection(const TListBoxData& data) override;

private:
    unsigned m_textLimit;
};

}  // namespace owl
