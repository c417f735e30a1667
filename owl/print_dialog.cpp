#include "owl/print_dialog.h"

#include <algorithm>
#include <limits>

#include "owl/printer_blocks.h"

namespace owl {

namespace {

constexpr DWORD own_flags = PD_ENABLEPRINTHOOK | PD_ENABLESETUPHOOK | PD_ENABLEPRINTTEMPLATE |
                            PD_ENABLESETUPTEMPLATE | PD_ENABLEPRINTTEMPLATEHANDLE |
                            PD_ENABLESETUPTEMPLATEHANDLE | PD_RETURNDC | PD_RETURNIC | PD_RETURNDEFAULT;

// The highest number would leave the field empty.
WORD Page(int page) {
    return static_cast<WORD>(std::clamp(page, 0, std::numeric_limits<WORD>::max() - 1));
}

// The system frees and replaces the blocks as it likes, whatever comes of the dialog.
class Blocks {
public:
    explicit Blocks(PRINTDLGA& print) : m_print(print) {}
    ~Blocks() {
        ::GlobalFree(m_print.hDevNames);
        ::GlobalFree(m_print.hDevMode);
        m_print.hDevNames = m_print.hDevMode = nullptr;
    }
    Blocks(const Blocks&) = delete;
    Blocks& operator=(const Blocks&) = delete;

private:
    PRINTDLGA& m_print;
};

}  // namespace

const DEVMODEA* TPrintDialog::TData::GetDevMode() const {
    return m_devMode.empty() ? nullptr : reinterpret_cast<const DEVMODEA*>(m_devMode.data());
}

DEVMODEA* TPrintDialog::TData::GetDevMode() {
    return m_devMode.empty() ? nullptr : reinterpret_cast<DEVMODEA*>(m_devMode.data());
}

void TPrintDialog::TData::SetDevNames(const char* driver, const char* device, const char* output) {
    m_driver = driver != nullptr ? driver : "";
    m_device = device != nullptr ? device : "";
    m_output = output != nullptr ? output : "";
}

void TPrintDialog::TData::SetDevMode(const DEVMODEA* mode) {
    m_devMode = WholeDevMode(DevModeBytes(mode));
}

void TPrintDialog::TData::ClearDevNames() {
    SetDevNames(nullptr, nullptr, nullptr);
}

void TPrintDialog::TData::ClearDevMode() {
    m_devMode.clear();
}

TPrintDialog::TPrintDialog(TWindow* parent, TData& data, const char* title, TModule* module)
    : TCommonDialog(parent, title, module), Data(data) {}

TPrintDialog::~TPrintDialog() = default;

int TPrintDialog::DoExecute() {
    if (!Data.HasDevice())
        RequirePrinter();
    const Blocks blocks(pd);
    FillIn();
    const int result = RunDialog("PrintDlg", Data.Error, [this] { return ::PrintDlgA(&pd) != FALSE; });
    if (result == IDOK)
        TakeOut();
    return result;
}

// The number of copies in the settings would win over the one beside them.
void TPrintDialog::FillIn() {
    pd = {};
    pd.lStructSize = sizeof pd;
    pd.hwndOwner = GetOwnerHandle();
    pd.Flags = (Data.Flags & ~own_flags) | PD_ENABLEPRINTHOOK | PD_ENABLESETUPHOOK | PD_NOWARNING;
    pd.nMinPage = Page(Data.MinPage);
    pd.nMaxPage = std::max(pd.nMinPage, Page(Data.MaxPage));
    pd.nFromPage = std::clamp(Page(Data.FromPage), pd.nMinPage, pd.nMaxPage);
    pd.nToPage = std::clamp(Page(Data.ToPage), pd.nMinPage, pd.nMaxPage);
    pd.nCopies = std::max(Page(Data.Copies), WORD{1});
    pd.lpfnPrintHook = &HookProcedure;
    pd.lpfnSetupHook = &HookProcedure;
    if (Data.HasDevice())
        pd.hDevNames =
            MakeBlock(DevNamesBytes({Data.GetDriverName(), Data.GetDeviceName(), Data.GetOutputName()}));
    std::vector<std::byte> mode = DevModeBytes(Data.GetDevMode());
    if (!mode.empty())
        reinterpret_cast<DEVMODEA*>(mode.data())->dmCopies =
            static_cast<short>(std::min<int>(pd.nCopies, SHRT_MAX));
    pd.hDevMode = MakeBlock(mode);
}

void TPrintDialog::TakeOut() {
    TakePrinter();
    Data.Flags = (pd.Flags & ~(own_flags | PD_NOWARNING)) | (Data.Flags & PD_NOWARNING);
    Data.FromPage = pd.nFromPage;
    Data.ToPage = pd.nToPage;
    Data.Copies = pd.nCopies;
}

void TPrintDialog::TakePrinter() {
    const PrinterNames names = NamesInDevNames(BlockBytes(pd.hDevNames));
    const std::vector<std::byte> mode = WholeDevMode(BlockBytes(pd.hDevMode));
    Data.SetDevNames(names.driver.c_str(), names.device.c_str(), names.output.c_str());
    Data.SetDevMode(mode.empty() ? nullptr : reinterpret_cast<const DEVMODEA*>(mode.data()));
}

// Without any printer some systems show the dialog all the same, with nothing to choose in it.
void TPrintDialog::RequirePrinter() {
    const Blocks blocks(pd);
    if (!AskForDefault())
        throw TXCommonDialog("PrintDlg", Data.Error);
}

bool TPrintDialog::ChooseDefault() {
    const Blocks blocks(pd);
    if (!AskForDefault())
        return false;
    TakePrinter();
    return true;
}

bool TPrintDialog::AskForDefault() {
    pd = {};
    pd.lStructSize = sizeof pd;
    pd.Flags = PD_RETURNDEFAULT | PD_NOWARNING;
    const bool found = ::PrintDlgA(&pd) != FALSE;
    Data.Error = found ? 0 : ::CommDlgExtendedError();
    return found;
}

}  // namespace owl
