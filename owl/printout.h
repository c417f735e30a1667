// owl/printout.h
//
// What is printed: a document that draws itself page by page. A class derives from this one, overrides
// PrintPage and HasPage, and hands an object to TPrinter::Print, which calls in this order:
//
//     GetDialogInfo                           before the user is asked for pages
//     SetPrintParams                          the context is there, nothing is printed yet
//     BeginPrinting
//       BeginDocument                         for each copy of the document
//         PrintPage                           for each page, as long as HasPage has it
//       EndDocument
//     EndPrinting
//     SetPrintParams with null                the context goes
//
// Each End follows its Begin also when the printing is cancelled or fails, but not behind an exception of the
// printout: that ends the job, and TPrinter::Print throws it on.
#pragma once

#include <string>

#include "owl/geometry.h"
#include "owl/platform/export.h"

namespace owl {

class TPrintDC;

class OWL_EXPORT TPrintout {
public:
    /// `title` is what the system's list of jobs shows.
    explicit TPrintout(const std::string& title);
    virtual ~TPrintout();
    TPrintout(const TPrintout&) = delete;
    TPrintout& operator=(const TPrintout&) = delete;

    const std::string& GetTitle() const { return m_title; }
    /// The printer's context, which belongs to the job; null when none is under way.
    TPrintDC* GetPrintDC() const { return m_dc; }
    /// How many units of the device a page is wide and high, without what the printer cannot reach; of the
    /// last job when none is under way, and 0 by 0 before the first.
    TSize GetPageSize() const { return m_pageSize; }

    /// Gets the range of pages that TPrinter::GetSetup holds and may change it for this job: the first and
    /// the last page, both 0 if nobody knows; and the pages that are selected, for who offers to print the
    /// selection, 0 if none. By itself it changes nothing.
    virtual void GetDialogInfo(int& minPage, int& maxPage, int& selFromPage, int& selToPage);
    /// Keeps what GetPrintDC and GetPageSize tell. What overrides it calls it. Must not throw for a null
    /// `dc`.
    virtual void SetPrintParams(TPrintDC* dc, TSize pageSize);
    /// Whether there is a page of that number; pages count from 1. By itself there is page 1 alone. Asked
    /// behind BeginPrinting, in front of each page.
    virtual bool HasPage(int page);
    virtual void BeginPrinting();
    /// `startPage` and `endPage` are what is wanted of the document, which may end sooner.
    virtual void BeginDocument(int startPage, int endPage, unsigned flags);
    /// Draws the page with GetPrintDC, whose modes and tools are the first ones again. `rect` is the whole
    /// page, `flags` are all bits that are set for the whole of a page. By itself it leaves the page empty.
    virtual void PrintPage(int page, TRect& rect, unsigned flags);
    virtual void EndDocument();
    virtual void EndPrinting();

private:
    std::string m_title;
    TPrintDC* m_dc = nullptr;
    TSize m_pageSize;
};

/// What is to be drawn of a page, in the flags of PrintPage and BeginDocument; this framework always asks for
/// all of it.
enum TPrintoutFlags : unsigned {
    pfGraphics = 0x01,
    pfText = 0x02,
    pfBoth = pfGraphics | pfText,
};

}  // namespace owl
