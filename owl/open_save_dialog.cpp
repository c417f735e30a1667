#include "owl/open_save_dialog.h"

#include <algorithm>

#include "owl/file_name_lists.h"

namespace owl {

namespace {

constexpr DWORD own_flags =
    OFN_ENABLEHOOK | OFN_ENABLETEMPLATE | OFN_ENABLETEMPLATEHANDLE | OFN_ENABLEINCLUDENOTIFY;
constexpr int most_names = 32767;
constexpr int most_path = 1 << 20;

// Of a text or a list of texts.
template <class Text>
auto OrNull(Text& text) {
    return text.empty() ? nullptr : text.data();
}

std::string OrEmpty(const char* text) {
    return text != nullptr ? text : "";
}

bool IsExplorer(DWORD flags) {
    return (flags & OFN_EXPLORER) != 0;
}

bool MayBeSeveral(DWORD flags) {
    return (flags & OFN_ALLOWMULTISELECT) != 0;
}

std::vector<char> NameBuffer(const TOpenSaveDialog::TData& data) {
    const int usual = MayBeSeveral(data.Flags) ? most_names : MAX_PATH;
    const int size = std::min(data.MaxPath > 0 ? data.MaxPath : usual, most_path);
    std::vector<char> name(data.FileName.begin(), data.FileName.end());
    name.resize(std::max(static_cast<std::size_t>(size), name.size() + 1));
    return name;
}

bool IsInitDone(UINT msg, LPARAM lParam) {
    return msg == WM_NOTIFY &&
           reinterpret_cast<const NMHDR*>(lParam)->code == static_cast<UINT>(CDN_INITDONE);
}

}  // namespace

// What the system reads and writes while the dialog is shown.
struct TOpenSaveDialog::Buffers {
    explicit Buffers(const TData& data) : name(NameBuffer(data)) {
        if (!data.Filter.empty())
            filter = FilterList(data.Filter);
        if (!data.CustomFilter.empty())
            customFilter = CustomFilterBuffer(data.CustomFilter);
    }

    std::vector<char> name;
    std::vector<char> filter;
    std::vector<char> customFilter;
};

// The window inside of the newer dialogs to which the controls of a template belong, and which the system
// tells what happens. Who asks who answers asks the dialog first.
class TOpenSaveDialog::Pane : public TWindow {
public:
    Pane(TOpenSaveDialog& dialog, HWND handle) : TWindow(handle), m_dialog(dialog) {}

    bool Find(TEventInfo& info) override {
        const bool isForDialog = IsNews(info.Msg) && !m_dialog.HasGivenUp();
        return (isForDialog && m_dialog.Find(info)) || TWindow::Find(info);
    }

    // What the system tells has no sender's number that one could rely on.
    LRESULT EvNotify(UINT id, TNotify& notify) override {
        const bool isSystems =
            notify.code >= static_cast<UINT>(CDN_LAST) && notify.code <= static_cast<UINT>(CDN_FIRST);
        return TWindow::EvNotify(isSystems ? 0 : id, notify);
    }

protected:
    void ExceptionCarried() override { m_dialog.ExceptionCarried(); }

private:
    static bool IsNews(UINT msg) {
        return msg == WM_COMMAND || msg == WM_NOTIFY || msg == TEventInfo::ChildNotification;
    }

    TOpenSaveDialog& m_dialog;
};

TOpenSaveDialog::TData::TData(DWORD flags, const char* filter, const char* customFilter,
                              const char* initialDir, const char* defExt, int maxPath, int filterIndex)
    : Flags(flags),
      Filter(OrEmpty(filter)),
      CustomFilter(OrEmpty(customFilter)),
      FilterIndex(filterIndex),
      InitialDir(OrEmpty(initialDir)),
      DefExt(OrEmpty(defExt)),
      MaxPath(maxPath) {}

std::vector<std::string> TOpenSaveDialog::TData::GetFileNames() const {
    if (!MayBeSeveral(Flags) && !FileName.empty())
        return {FileName};
    // The older dialog has no blanks in its names.
    return FullPaths(FileName, IsExplorer(Flags) ? '\0' : ' ');
}

TOpenSaveDialog::TOpenSaveDialog(TWindow* parent, TData& data, TResId templateId, const char* title,
                                 TModule* module)
    : TCommonDialog(parent, title, module), Data(data), m_templateId(templateId) {}

TOpenSaveDialog::~TOpenSaveDialog() = default;

HWND TOpenSaveDialog::GetDlgItem(int id) const {
    const HWND item = TCommonDialog::GetDlgItem(id);
    return item != nullptr || m_paneHandle == nullptr ? item : ::GetDlgItem(m_paneHandle, id);
}

// The system tells the pane when the dialog around it is complete: before that it has neither its size nor
// its controls.
UINT_PTR CALLBACK TOpenSaveDialog::PaneProcedure(HWND pane, UINT msg, WPARAM wParam, LPARAM lParam) {
    auto* const dialog = dynamic_cast<TOpenSaveDialog*>(Awaited());
    if (dialog == nullptr)
        return FALSE;
    if (msg == WM_INITDIALOG) {
        dialog->m_paneHandle = pane;
        // The keyboard is for the name of the file.
        return FALSE;
    }
    if (pane == dialog->m_paneHandle && IsInitDone(msg, lParam)) {
        dialog->m_pane = std::make_unique<Pane>(*dialog, pane);
        dialog->TakeOver(::GetParent(pane), wParam, 0);
    }
    return FALSE;
}

int TOpenSaveDialog::Choose(const char* call, BOOL(WINAPI* function)(OPENFILENAMEA*)) {
    struct Ending {
        ~Ending() {
            dialog.m_pane.reset();
            dialog.m_paneHandle = nullptr;
            dialog.ofn.lpstrFile = dialog.ofn.lpstrCustomFilter = nullptr;
            dialog.ofn.lpstrFilter = nullptr;
        }
        TOpenSaveDialog& dialog;
    } const ending{*this};
    Buffers buffers(Data);
    FillIn(buffers);
    if (!m_templateId.IsNull())
        UseTemplate(call);
    const int result = RunDialog(call, Data.Error, [&] { return function(&ofn) != FALSE; });
    if (result == IDOK)
        TakeOut(buffers);
    return result;
}

void TOpenSaveDialog::FillIn(Buffers& buffers) {
    ofn = {};
    ofn.lStructSize = sizeof ofn;
    ofn.hwndOwner = GetOwnerHandle();
    ofn.lpstrFile = buffers.name.data();
    ofn.nMaxFile = static_cast<DWORD>(buffers.name.size());
    ofn.lpstrFilter = OrNull(buffers.filter);
    ofn.lpstrCustomFilter = OrNull(buffers.customFilter);
    ofn.nMaxCustFilter = static_cast<DWORD>(buffers.customFilter.size());
    ofn.nFilterIndex = static_cast<DWORD>(std::max(Data.FilterIndex, Data.CustomFilter.empty() ? 1 : 0));
    ofn.lpstrInitialDir = OrNull(Data.InitialDir);
    ofn.lpstrDefExt = OrNull(Data.DefExt);
    ofn.Flags = (Data.Flags & ~own_flags) | OFN_ENABLEHOOK;
    ofn.lpfnHook = IsExplorer(Data.Flags) ? &PaneProcedure : &HookProcedure;
}

// Some systems show the dialog without its template: then nobody would tell this object of it.
void TOpenSaveDialog::UseTemplate(const char* call) {
    ofn.Flags |= OFN_ENABLETEMPLATE;
    ofn.hInstance = GetInstance();
    ofn.lpTemplateName = m_templateId;
    if (::FindResourceA(ofn.hInstance, m_templateId, RT_DIALOG) != nullptr)
        return;
    Data.Error = CDERR_FINDRESFAILURE;
    throw TXCommonDialog(call, Data.Error);
}

void TOpenSaveDialog::TakeOut(const Buffers& buffers) {
    const bool several = MayBeSeveral(ofn.Flags) && IsExplorer(ofn.Flags);
    Data.FileName = ChosenNames(buffers.name, several);
    Data.CustomFilter = FirstFilter(buffers.customFilter);
    Data.FilterIndex = static_cast<int>(ofn.nFilterIndex);
    Data.Flags = ofn.Flags & ~own_flags;
}

TFileOpenDialog::TFileOpenDialog(TWindow* parent, TData& data, TResId templateId, const char* title,
                                 TModule* module)
    : TOpenSaveDialog(parent, data, templateId, title, module) {}

TFileOpenDialog::~TFileOpenDialog() = default;

int TFileOpenDialog::DoExecute() {
    return Choose("GetOpenFileName", &::GetOpenFileNameA);
}

TFileSaveDialog::TFileSaveDialog(TWindow* parent, TData& data, TResId templateId, const char* title,
                                 TModule* module)
    : TOpenSaveDialog(parent, data, templateId, title, module) {}

TFileSaveDialog::~TFileSaveDialog() = default;

int TFileSaveDialog::DoExecute() {
    return Choose("GetSaveFileName", &::GetSaveFileNameA);
}

}  // namespace owl
