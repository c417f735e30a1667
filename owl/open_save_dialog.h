// owl/open_save_dialog.h
//
// The system's dialogs to choose the name of a file to open, or of one to save to.
//
//     owl::TOpenSaveDialog::TData data(OFN_FILEMUSTEXIST, "Drawings (*.drw)|*.drw|All files|*.*");
//     if (owl::TFileOpenDialog(this, data).Execute() == IDOK)
//         Open(data.FileName);
//
// The data are the caller's and must live as long as the dialog. DoExecute reads them when it begins and
// fills them in when a name was chosen, so that a class which overrides it can change them before.
//
// With OFN_EXPLORER in the flags the dialog is of the newer kind. Then too the object is the whole dialog,
// the frame with the list of files and the buttons, not the pane inside of it that holds the controls of a
// template: centring and enumerating children do what they say. The template's controls are found by
// GetDlgItem like the others, control objects take them over, and what they tell comes to the dialog's
// response table, as do the system's own notifications: EV_NOTIFY(0, CDN_FILEOK, …).
//
// Does not: keep the current folder from changing (OFN_NOCHANGEDIR does), read or write files.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "owl/common_dialog.h"

namespace owl {

class OWL_EXPORT TOpenSaveDialog : public TCommonDialog {
public:
    /// What a dialog is to offer, and what was chosen.
    struct OWL_EXPORT TData {
        /// Null texts are empty ones.
        explicit TData(DWORD flags = 0, const char* filter = nullptr, const char* customFilter = nullptr,
                       const char* initialDir = nullptr, const char* defExt = nullptr, int maxPath = 0,
                       int filterIndex = 0);

        /// All chosen files with their folders. Empty if none was chosen.
        std::vector<std::string> GetFileNames() const;

        /// OFN_ values. OFN_READONLY and OFN_EXTENSIONDIFFERENT come back; those about hooks and templates
        /// are the dialog's own.
        DWORD Flags;
        /// Why the dialog could not be shown, as TXCommonDialog tells; else 0.
        DWORD Error = 0;
        /// The name to begin with; the full path that was chosen. With OFN_ALLOWMULTISELECT several may come
        /// in one text: ask GetFileNames.
        std::string FileName;
        /// What kinds of files there are, each a description and a pattern: "Text|*.txt;*.log|All|*.*".
        std::string Filter;
        /// One kind more, whose pattern the user's own replaces: "Other|*.abc". Comes back.
        std::string CustomFilter;
        /// Which kind is shown first and was shown last, counted from 1; 0 is the custom one.
        int FilterIndex;
        /// The folder to begin in; empty leaves it to the system.
        std::string InitialDir;
        /// Appended to a name that is typed without one; no dot.
        std::string DefExt;
        /// How many bytes the chosen names may take with their terminator; 0 stands for MAX_PATH, or for
        /// 32767 if there may be several. Never more than a megabyte.
        int MaxPath;
    };

    ~TOpenSaveDialog() override;

    /// In the dialog or in the pane of its template. Null if there is none.
    HWND GetDlgItem(int id) const override;

protected:
    TOpenSaveDialog(TWindow* parent, TData& data, TResId templateId, const char* title, TModule* module);

    /// What DoExecute does by `function`, which the messages of exceptions call `call`.
    int Choose(const char* call, BOOL(WINAPI* function)(OPENFILENAMEA*));

    TData& Data;
    /// What the system works on while the dialog is shown.
    OPENFILENAMEA ofn{};

private:
    class Pane;
    struct Buffers;

    static UINT_PTR CALLBACK PaneProcedure(HWND pane, UINT msg, WPARAM wParam, LPARAM lParam);
    void FillIn(Buffers& buffers);
    void UseTemplate(const char* call);
    void TakeOut(const Buffers& buffers);

    TResId m_templateId;
    HWND m_paneHandle = nullptr;
    std::unique_ptr<Pane> m_pane;
};

class OWL_EXPORT TFileOpenDialog : public TOpenSaveDialog {
public:
    /// `templateId` names a template in `module` with controls of one's own, or nothing. A null `title`
    /// leaves the system's.
    TFileOpenDialog(TWindow* parent, TData& data, TResId templateId = TResId(), const char* title = nullptr,
                    TModule* module = nullptr);
    ~TFileOpenDialog() override;

    /// IDOK when a name was chosen, else IDCANCEL and the data are as they were. Throws TXCommonDialog, or
    /// what a handler threw.
    int DoExecute() override;
};

class OWL_EXPORT TFileSaveDialog : public TOpenSaveDialog {
public:
    TFileSaveDialog(TWindow* parent, TData& data, TResId templateId = TResId(), const char* title = nullptr,
                    TModule* module = nullptr);
    ~TFileSaveDialog() override;

    int DoExecute() override;
};

}  // namespace owl
