#include "sketch/frame/frame.h"

#include <new>

#include "owl/dialog.h"
#include "owl/open_save_dialog.h"
#include "sketch/frame/printing.h"
#include "sketch/frame/sketch_ids.h"
#include "sketch/model/error.h"

namespace sketch {
namespace {

constexpr const char* program = "Sketch";
constexpr const char* documents = "Drawings (*.lvx)|*.lvx|All files (*.*)|*.*";
constexpr const char* pictures =
    "Pictures (*.bmp; *.dib; *.jpg)|*.bmp;*.dib;*.jpg;*.jpeg|All files (*.*)|*.*";
constexpr const char* no_memory = "There is not enough memory.";

}  // namespace

Frame::Frame() : TFrameWindow(nullptr, program) {
    Attr.Menu = IDM_SKETCH;
    Attr.AccelTable = IDA_SKETCH;
    SetIcon(GetModule(), IDI_SKETCH);
    m_status = new StatusLine(this);
    m_status->Attr.Id = IDC_STATUS;
    Insert(*m_status, Bottom);
    m_view = new View(m_document, [this] { ShowState(); });
    m_view->Attr.Id = IDC_VIEW;
    SetClientWindow(m_view);
}

void Frame::SetupWindow() {
    TFrameWindow::SetupWindow();
    ShowState();
}

void Frame::ShowState() {
    const std::string title = m_document.Title() + (m_document.IsChanged() ? "*" : "") + " - " + program;
    if (title != GetWindowText()) {
        SetWindowText(title);
    }
    m_status->Show(m_view->Status());
}

void Frame::TellFailure(const std::string& file, const char* what, const char* cause) {
    const std::string text = file + "\n" + what + "\n\n" + cause;
    MessageBox(text.c_str(), program, MB_OK | MB_ICONEXCLAMATION);
}

void Frame::Open(const std::string& file) {
    constexpr const char* what = "could not be opened.";
    try {
        m_document.Open(file);
        m_view->BeginAnew();
    } catch (const DocumentError& error) {
        TellFailure(file, what, error.what());
    } catch (const std::bad_alloc&) {
        TellFailure(file, what, no_memory);
    }
}

bool Frame::SaveTo(const std::string& file) {
    constexpr const char* what = "could not be saved.";
    try {
        m_document.Save(file);
        ShowState();
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
    return owl::TFileSaveDialog(this, data).Execute() == IDOK && SaveTo(data.FileName);
}

bool Frame::MayLoseChanges() {
    if (!m_document.IsChanged()) {
        return true;
    }
    const std::string question = "Save the changes to " + m_document.Title() + "?";
    const int answer = MessageBox(question.c_str(), program, MB_YESNOCANCEL | MB_ICONQUESTION);
    return answer == IDNO || (answer == IDYES && Save());
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
    if (owl::TFileOpenDialog(this, data).Execute() == IDOK) {
        Open(data.FileName);
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
    if (owl::TFileOpenDialog(this, data, owl::TResId(), "Add a Picture").Execute() != IDOK) {
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

void Frame::CmAbout() {
    owl::TDialog(this, IDD_ABOUT).Execute();
}

DEFINE_RESPONSE_TABLE1(Frame, owl::TFrameWindow)
    EV_COMMAND(CM_NEW, CmNew), EV_COMMAND(CM_OPEN, CmOpen), EV_COMMAND(CM_SAVE, CmSave),
        EV_COMMAND(CM_SAVE_AS, CmSaveAs), EV_COMMAND(CM_PRINT, CmPrint),
        EV_COMMAND(CM_ADD_PICTURE, CmAddPicture), EV_COMMAND(CM_EXIT, CmExit), EV_COMMAND(CM_ABOUT, CmAbout),
END_RESPONSE_TABLE;

}  // namespace sketch
