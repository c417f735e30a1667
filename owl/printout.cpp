#include "owl/printout.h"

namespace owl {

TPrintout::TPrintout(const std::string& title) : m_title(title) {}

TPrintout::~TPrintout() = default;

void TPrintout::GetDialogInfo(int& minPage, int& maxPage, int& selFromPage, int& selToPage) {
    static_cast<void>(minPage);
    static_cast<void>(maxPage);
    static_cast<void>(selFromPage);
    static_cast<void>(selToPage);
}

void TPrintout::SetPrintParams(TPrintDC* dc, TSize pageSize) {
    m_dc = dc;
    m_pageSize = pageSize;
}

bool TPrintout::HasPage(int page) {
    return page == 1;
}

void TPrintout::BeginPrinting() {}

void TPrintout::BeginDocument(int startPage, int endPage, unsigned flags) {
    static_cast<void>(startPage);
    static_cast<void>(endPage);
    static_cast<void>(flags);
}

void TPrintout::PrintPage(int page, TRect& rect, unsigned flags) {
    static_cast<void>(page);
    static_cast<void>(rect);
    static_cast<void>(flags);
}

void TPrintout::EndDocument() {}

void TPrintout::EndPrinting() {}

}  // namespace owl
