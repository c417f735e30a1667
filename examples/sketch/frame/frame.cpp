#include "sketch/frame/frame.h"

#include <new>

#include "lvx/controls/centred_dialog.h"
#include "lvx/controls/file_dialogs.h"
#include "lvx/controls/yn_dialog.h"
#include "sketch/frame/preferences.h"
#include "sketch/frame/printing.h"
#include "sketch/frame/settings_wizard.h"
#include "sketch/frame/sketch_ids.h"
#include "sketch/frame/tool_bar.h"
#include "sketch/model/error.h"

namespace sketch {
namespace {

constexpr const char* program = "Sketch";
constexpr const char* documents = "Drawings (*.lvx)|*.lvx|All files (*.*)|*.*";
constexpr const char* pictures =
    "Pictures (*.bmp; *.dib; *.jpg)|*.bmp;*.dib;*.jpg;*.jpeg|All files (*.*)|*.*";
constexpr const char* no_memory = "There is not enough memory.";
// In the first menu, behind what prints.
constexpr int place_of_recent_files = 7;

std::string FullName(const std::string& file) {
    char name[MAX_PATH] = "";
    const DWORD length = ::GetFullPathNameA(file.c_str(), sizeof name, name, nullptr);
    return length == 0 || length >= sizeof name ? file : name;
}

}  // namespace

Frame::Frame()
    : TFrameWindow(nullptr, program),
      m_settings(program, false),
      m_recent(this, CM_RECENT, place_of_recent_files, m_settings) {
    Attr.Menu = IDM_SKETCH;
    Attr.AccelTable = IDA_SKETCH;
    SetIcon(GetModule(), IDI_SKETCH);
    auto* const bar = new ToolBar(this);
    bar->Attr.Id = IDC_BAR;
    Insert(*bar, Top);
    m_status = new StatusLine(this);
    m_status->Attr.Id = IDC_STATUS;
    Insert(*m_status, Bottom);
    m_view = new View(m_document, [this] { ShowState(); });
    m_view->Attr.Id = IDC_VIEW;
    SetClientWindow(m_view);
}

void Frame::SetupWindow() {
    TFrameWindow::SetupWindow();
    m_recent.readFromINI();
    m_view->Prefer(LoadPreferences(m_settings));
    m_shapes = std::make_unique<ShapeMenu>(*this, [this](int index) { m_view->SelectFigure(index); });
    m_service = std::make_unique<DdeService>(static_cast<Told&>(*this));
    ShowState();
}

Frame::~Frame() = default;

LRESULT Frame::EvCommand(UINT id, HWND control, UINT notifyCode) {
    if (control == nullptr && LVXMenu::MenuItemSelected(id)) {
        return 0;
    }
    return TFrameWindow::EvCommand(id, control, notifyCode);
}

void Frame::EvCommandEnable(owl::TCommandEnabler& enabler) {
    if (!LVXMenu::MenuItemEnable(enabler)) {
        TFrameWindow::EvCommandEnable(enabler);
    }
}

void Frame::EvInitMenuPopup(HMENU menu, UINT position, bool systemMenu) {
    if (m_shapes->Is(menu)) {
        m_shapes->List(m_document.Contents(), m_view->SelectedIndex());
    }
    TFrameWindow::EvInitMenuPopup(menu, position, systemMenu);
}

void Frame::ShowHint(int, const std::string& text) {
    m_hint = text;
    ShowState();
}

void Frame::ShowState() {
    const std::string title = m_document.Title() + (m_document.IsChanged() ? "*" : "") + " - " + program;
    if (title != GetWindowText()) {
        SetWindowText(title);
    }
    m_status->Show(m_hint.empty() ? m_view->Status() : m_hint);
    if (m_service != nullptr) {
        m_service->Update();
    }
}

void Frame::TellFailure(const std::string& file, const char* what, const char* cause) {
    const std::string text = file + "\n" + what + "\n\n" + cause;
    MessageBox(text.c_str(), program, MB_OK | MB_ICONEXCLAMATION);
}

void Frame::Open(const std::string& name) {
    constexpr const char* what = "could not be opened.";
    const std::string file = FullName(name);
    try {
        Load(file);
    } catch (const DocumentError& error) {
        m_recent.removeFile(file);
        TellFailure(file, what, error.what());
    } catch (const std::bad_alloc&) {
        TellFailure(file, what, no_memory);
    }
}

void Frame::Load(const std::string& name) {
    const std::string file = FullName(name);
    m_document.Open(file);
    m_recent.addFile(file);
    m_view->BeginAnew();
}

void Frame::Store(const std::string& name) {
    const std::string file = FullName(name);
    m_document.Save(file);
    m_recent.addFile(file);
    ShowState();
}

bool Frame::SaveTo(const std::string& file) {
    constexpr const char* what = "could not be saved.";
    try {
        Store(file);
        return true;
    } catch (const DocumentError& error) {
        TellFailure(file, what, error.what());
    } catch (const std::bad_alloc&) {
        TellFailure(file, what, no_memory);
    }
    return false;
}

bool Frame::Save() {
    return m_document.HasOwnFile() ? SaveTo(m_document.File()) : SaveAs();
}

bool Frame::SaveAs() {
    constexpr DWORD flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST;
    owl::TOpenSaveDialog::TData data(flags, documents, nullptr, nullptr, "lvx");
    // The name of a document that is not this program's own is not offered: nobody should lose it by Enter.
    data.FileName = m_document.HasOwnFile() ? m_document.File() : "";
    return LVXFileSaveDialog(this, data, owl::TResId(), nullptr, nullptr).Execute() == IDOK &&
           SaveTo(data.FileName);
}

bool Frame::MayLoseChanges() {
    if (!m_document.IsChanged()) {
        return true;
    }
    const yesNoCancel answer =
        ynDialog::dialog(this, true, yesNoCancel::yes, "Save the changes to %s?", m_document.Title().c_str());
    return answer == yesNoCancel::no || (answer == yesNoCancel::yes && Save());
}

bool Frame::CanClose() {
    return TFrameWindow::CanClose() && MayLoseChanges();
}

void Frame::CmNew() {
    if (MayLoseChanges()) {
        m_document = Document();
        m_view->BeginAnew();
    }
}

void Frame::CmOpen() {
    if (!MayLoseChanges()) {
        return;
    }
    owl::TOpenSaveDialog::TData data(OFN_EXPLORER | OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, documents);
    if (LVXFileOpenDialog(this, data, owl::TResId(), nullptr, nullptr).Execute() == IDOK) {
        Open(data.FileName);
    }
}

void Frame::CmRecent(UINT command) {
    // Opening changes the list.
    const std::string file = m_recent.getFile(static_cast<int>(command) - CM_RECENT);
    if (MayLoseChanges()) {
        Open(file);
    }
}

void Frame::CmSave() {
    Save();
}

void Frame::CmSaveAs() {
    SaveAs();
}

void Frame::CmPrint() {
    PrintFigures(*this, m_printer, m_document.Title(), m_document.Contents());
}

void Frame::CmAddPicture() {
    owl::TOpenSaveDialog::TData data(OFN_EXPLORER | OFN_HIDEREADONLY | OFN_FILEMUSTEXIST, pictures);
    if (LVXFileOpenDialog(this, data, owl::TResId(), "Add a Picture", nullptr).Execute() != IDOK) {
        return;
    }
    constexpr const char* what = "could not be added.";
    try {
        m_view->AddPicture(data.FileName);
    } catch (const DocumentError& error) {
        TellFailure(data.FileName, what, error.what());
    } catch (const std::bad_alloc&) {
        TellFailure(data.FileName, what, no_memory);
    }
}

void Frame::CmSettings() {
    Preferences preferences = m_view->Preferred();
    if (RunSettingsWizard(this, preferences)) {
        m_view->Prefer(preferences);
        SavePreferences(m_settings, preferences);
    }
}

void Frame::CmAbout() {
    LVXCentredDialog(this, IDD_ABOUT, nullptr).Execute();
}

DEFINE_RESPONSE_TABLE1(Frame, owl::TFrameWindow)
    EV_WM_INITMENUPOPUP, EV_COMMAND(CM_NEW, CmNew), EV_COMMAND_AND_ID(CM_RECENT + 1, CmRecent),
        EV_COMMAND_AND_ID(CM_RECENT + 2, CmRecent), EV_COMMAND_AND_ID(CM_RECENT + 3, CmRecent),
        EV_COMMAND_AND_ID(CM_RECENT + 4, CmRecent), EV_COMMAND_AND_ID(CM_RECENT + 5, CmRecent),
        EV_COMMAND_AND_ID(CM_RECENT + 6, CmRecent), EV_COMMAND(CM_OPEN, CmOpen), EV_COMMAND(CM_SAVE, CmSave),
        EV_COMMAND(CM_SAVE_AS, CmSaveAs), EV_COMMAND(CM_PRINT, CmPrint),
        EV_COMMAND(CM_ADD_PICTURE, CmAddPicture), EV_COMMAND(CM_EXIT, CmExit), EV_COMMAND(CM_ABOUT, CmAbout),
        EV_COMMAND(CM_SETTINGS, CmSettings),
END_RESPONSE_TABLE;

}  // namespace sketch
