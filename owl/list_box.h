// owl/list_box.h
//
// A list of texts, one of which is selected at most. Items count from 0; -1 (LB_ERR) says that there is none.
#pragma once

#include <string>
#include <vector>

#include "owl/control.h"

namespace owl {

/// What a list or a combo box transfers, by pointer: the buffer has the address of one of these. Reading the
/// control changes the selection alone, the text of a combo box included.
struct TListBoxData {
    std::vector<std::string> Strings;
    int SelIndex = -1;
    /// The selected text, which outweighs the index where the list has it elsewhere; of a combo box with a
    /// field what stands in it.
    std::string SelString;
};

class OWL_EXPORT TListBox : public TControl {
public:
    TListBox(TWindow* parent, int id, int x, int y, int w, int h, TModule* module = nullptr);
    explicit TListBox(TWindow* parent, int resourceId, TModule* module = nullptr);
    ~TListBox() override;

    /// These return the item's index, -1 if the system refuses. A null text is an empty one.
    virtual int AddString(const char* text);
    virtual int InsertString(const char* text, int index);
    /// The first item behind `start` that begins with `text`, without regard to case; -1 starts at the top.
    virtual int FindString(const char* text, int start = -1) const;
    /// Returns how many items are left, -1 for a bad index.
    virtual int DeleteString(int index);
    virtual void ClearList();
    virtual int GetCount() const;
    /// Copies the item, which must have room for GetStringLen and a NUL; returns its length. -1 for a bad
    /// index, and `text` is then empty.
    virtual int GetString(char* text, int index) const;
    /// -1 for a bad index.
    virtual int GetStringLen(int index) const;
    virtual int GetSelIndex() const;
    /// -1 selects nothing. False for a bad index.
    virtual bool SetSelIndex(int index);
    /// Selects the first item behind `start` that begins with `text`; returns its index.
    virtual int SetSelString(const char* text, int start = -1);
    /// Copies at most `size` - 1 bytes of the selected item; returns how many. 0 with nothing selected.
    int GetSelString(char* text, int size) const;
    /// LB_ERR for a bad index, 0 without a window.
    virtual LPARAM GetItemData(int index) const;
    virtual bool SetItemData(int index, LPARAM data);

    /// The address of a TListBoxData, which the caller keeps; null is passed over.
    unsigned Transfer(void* buffer, TTransferDirection direction) override;

protected:
    const char* GetClassName() override;
    /// Fills in what the selection says.
    virtual void ReadSelection(TListBoxData& data) const;
    virtual void WriteSelection(const TListBoxData& data);

private:
    std::string TextOf(int index) const;
    int IndexOf(const TListBoxData& data) const;
};

}  // namespace owl
