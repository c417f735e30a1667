#include "lvx/drawing/printer.h"

#include "owl/print_dc.h"
#include "owl/printer.h"

LVXPrinter::LVXPrinter(const char* title, owl::TPrinter* printer)
    : TPrintout(title != nullptr ? title : ""), m_printer(printer) {}

LVXPrinter::~LVXPrinter() = default;

void LVXPrinter::setCallback(LVXPrintCallbackInterface* callback) {
    m_callback = callback;
}

owl::TDC* LVXPrinter::AcquireDC() {
    return GetPrintDC();
}

void LVXPrinter::ReleaseDC() {}

void LVXPrinter::sizeOfImage(int* width, int* height) {
    const owl::TSize size = GetPageSize();
    if (width != nullptr) {
        *width = static_cast<int>(size.cx);
    }
    if (height != nullptr) {
        *height = static_cast<int>(size.cy);
    }
}

void LVXPrinter::PrintPage(int page, owl::TRect&, unsigned) {
    if (m_callback != nullptr) {
        m_callback->PrintPage(page);
    }
}

bool LVXPrinter::HasPage(int page) {
    return page >= 1 && page <= m_pageCount;
}

bool LVXPrinter::print(owl::TWindow* parent, bool prompt, int pages) {
    m_pageCount = pages;
    if (m_printer == nullptr) {
        owl::TPrinter printer(nullptr);
        return printer.Print(parent, *this, prompt);
    }
    owl::TPrintDialog::TData& setup = m_printer->GetSetup();
    setup.Copies = 1;
    setup.MinPage = 1;
    setup.MaxPage = pages;
    setup.FromPage = 1;
    setup.ToPage = pages;
    return m_printer->Print(parent, *this, prompt);
}

HDC LVXPrinter::CreateICA() const {
    if (m_printer == nullptr) {
        return nullptr;
    }
    owl::TPrintDialog::TData setup = m_printer->GetSetup();
    if (!setup.HasDevice() && !owl::TPrintDialog(nullptr, setup).ChooseDefault()) {
        return nullptr;
    }
    return ::CreateICA(setup.GetDriverName(), setup.GetDeviceName(), setup.GetOutputName(),
                       setup.GetDevMode());
}
