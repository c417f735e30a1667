#include "owl/printer.h"

#include <memory>

#include "owl/application.h"
#include "owl/common_dialog_text.h"
#include "owl/condemned.h"
#include "owl/last_error.h"
#include "owl/page_plan.h"
#include "owl/print_abort.h"
#include "owl/print_abort_dialog.h"
#include "owl/print_dc.h"
#include "owl/print_job.h"
#include "owl/printout.h"

namespace owl {

namespace {

// What the user chooses in the dialog and the next job begins with.
constexpr DWORD choices = PD_PAGENUMS | PD_SELECTION | PD_COLLATE | PD_PRINTTOFILE;

// The window that `parent` lies in takes no input for so long. It takes it again before the dialog in front
// of it goes: else the system would activate another program's.
class NoInput {
public:
    explicit NoInput(const TWindow* parent) {
        const HWND handle = parent != nullptr ? parent->GetHandle() : nullptr;
        const HWND root = handle != nullptr ? ::GetAncestor(handle, GA_ROOT) : nullptr;
        if (root != nullptr && ::IsWindowEnabled(root)) {
            ::EnableWindow(root, FALSE);
            m_root = root;
        }
    }
    ~NoInput() {
        if (m_root != nullptr && ::IsWindow(m_root))
            ::EnableWindow(m_root, TRUE);
    }
    NoInput(const NoInput&) = delete;
    NoInput& operator=(const NoInput&) = delete;

private:
    HWND m_root = nullptr;
};

// Handles the messages that wait. False if the program is to end.
bool Pump() {
    TApplication* const application = GetApplicationObject();
    return application != nullptr ? application->PumpWaitingMessages() : TMsgThread().PumpWaitingMessages();
}

std::string TextOf(const PrintResult& result) {
    switch (result.code) {
        case SP_OUTOFDISK:
            return "there is no room on the disk";
        case SP_OUTOFMEMORY:
            return "memory is short";
        case SP_USERABORT:
            return std::string();
        default:
            return FailureText(result.call, result.reason);
    }
}

}  // namespace

// One job: the settings as they are for it, the pages that are selected.
struct TPrinter::Order {
    PagePlan Plan() const { return PlanPages(Range(), data.Copies, (data.Flags & PD_COLLATE) != 0); }
    PageRange Range() const {
        if ((data.Flags & PD_SELECTION) != 0 && selection.IsKnown())
            return selection;
        if ((data.Flags & PD_PAGENUMS) != 0)
            return {data.FromPage, data.ToPage};
        return {data.MinPage, data.MaxPage};
    }
    const char* Output() const { return (data.Flags & PD_PRINTTOFILE) != 0 ? data.GetOutputName() : nullptr; }

    TPrintDialog::TData data;
    PageRange selection;
};

TPrinter::TPrinter(TApplication* application) : m_application(application) {}

TPrinter::~TPrinter() = default;

void TPrinter::SetPrinter(const char* driver, const char* device, const char* output) {
    m_setup.SetDevNames(driver, device, output);
    m_setup.ClearDevMode();
}

void TPrinter::ClearDevice() {
    SetPrinter(nullptr, nullptr, nullptr);
}

bool TPrinter::Setup(TWindow* parent) {
    TPrintDialog::TData data(m_setup);
    data.Flags |= PD_PRINTSETUP;
    if (!ExecPrintDialog(parent, data))
        return false;
    m_setup.SetDevNames(data.GetDriverName(), data.GetDeviceName(), data.GetOutputName());
    m_setup.SetDevMode(data.GetDevMode());
    return true;
}

bool TPrinter::ExecPrintDialog(TWindow* parent, TPrintDialog::TData& data) {
    return TPrintDialog(parent, data).Execute() == IDOK;
}

bool TPrinter::Print(TWindow* parent, TPrintout& printout, bool prompt) {
    if (m_busy)
        throw TXOwl("the printer is printing already");
    struct Busy {
        explicit Busy(bool& flag) : busy(flag) { busy = true; }
        ~Busy() { busy = false; }
        bool& busy;
    };
    m_userAbort = false;
    Fail(0, std::string());
    {
        const Busy busy(m_busy);
        // The parent may end with a message that is handled meanwhile, but not its object.
        const FunctionScope function;
        Order order{m_setup, {}};
        if (Prepare(parent, printout, prompt, order) && RunJob(parent, printout, order))
            return true;
    }
    if (m_error != SP_USERABORT)
        ReportError(parent, printout);
    return false;
}

bool TPrinter::Prepare(TWindow* parent, TPrintout& printout, bool prompt, Order& order) {
    TPrintDialog::TData& data = order.data;
    if (!data.HasDevice() && !TPrintDialog(parent, data).ChooseDefault())
        return Fail(static_cast<int>(data.Error), CommonDialogText(data.Error));
    printout.GetDialogInfo(data.MinPage, data.MaxPage, order.selection.from, order.selection.to);
    if (prompt && !AskUser(parent, order))
        return false;
    // They would multiply.
    if (DEVMODEA* const mode = data.GetDevMode())
        mode->dmCopies = 1;
    return true;
}

bool TPrinter::AskUser(TWindow* parent, Order& order) {
    TPrintDialog::TData& data = order.data;
    data.Flags &= ~static_cast<DWORD>(PD_PRINTSETUP | PD_USEDEVMODECOPIESANDCOLLATE);
    if (!PageRange{data.MinPage, data.MaxPage}.IsKnown())
        data.Flags = (data.Flags & ~PD_PAGENUMS) | PD_NOPAGENUMS;
    if (!order.selection.IsKnown())
        data.Flags = (data.Flags & ~PD_SELECTION) | PD_NOSELECTION;
    try {
        if (!ExecPrintDialog(parent, data))
            return Fail(SP_USERABORT, std::string());
    } catch (const TXCommonDialog& failure) {
        return Fail(static_cast<int>(failure.GetCode()), failure.what());
    }
    Keep(data);
    return true;
}

// The pages that there can be are the printout's.
void TPrinter::Keep(const TPrintDialog::TData& data) {
    m_setup.SetDevNames(data.GetDriverName(), data.GetDeviceName(), data.GetOutputName());
    m_setup.SetDevMode(data.GetDevMode());
    m_setup.Flags = (m_setup.Flags & ~choices) | (data.Flags & choices);
    m_setup.FromPage = data.FromPage;
    m_setup.ToPage = data.ToPage;
    m_setup.Copies = data.Copies;
}

bool TPrinter::RunJob(TWindow* parent, TPrintout& printout, const Order& order) {
    const TPrintDialog::TData& data = order.data;
    const std::unique_ptr<TPrintDC> dc = MakeContext(data);
    if (!dc)
        return false;
    PrintAbortDialog dialog(parent, printout.GetTitle(), data.GetDeviceName(), [this] { SetUserAbort(); });
    dialog.Create();
    const NoInput noInput(parent);
    const AbortScope abort(*dc, [&] { return GoOn(dialog, 0); });
    PrintJob job(*dc, printout, [&](int page) { return GoOn(dialog, page); });
    const PrintResult result = job.Run(order.Plan(), order.Output());
    return result.IsGood() || Fail(result.code, TextOf(result));
}

std::unique_ptr<TPrintDC> TPrinter::MakeContext(const TPrintDialog::TData& data) {
    try {
        return std::make_unique<TPrintDC>(data.GetDriverName(), data.GetDeviceName(), nullptr,
                                          data.GetDevMode());
    } catch (const TXGdi& failure) {
        Fail(SP_ERROR, failure.what());
        return nullptr;
    }
}

// The window of the dialog may have gone with its parent's.
bool TPrinter::GoOn(PrintAbortDialog& dialog, int page) {
    if (page > 0)
        dialog.SetPage(page);
    const bool quits = !Pump();
    if (quits || !dialog.IsWindow())
        SetUserAbort();
    return !m_userAbort;
}

bool TPrinter::Fail(int error, const std::string& text) {
    m_error = error;
    m_errorText = text;
    return false;
}

void TPrinter::ReportError(TWindow* parent, TPrintout& printout) {
    const std::string text = "\"" + printout.GetTitle() + "\" could not be printed:\n" + m_errorText;
    const char* const caption = m_application != nullptr ? m_application->GetName() : "Print";
    const HWND window = parent != nullptr ? parent->GetHandle() : nullptr;
    ::MessageBoxA(window, text.c_str(), caption, MB_OK | MB_ICONEXCLAMATION);
}

}  // namespace owl
