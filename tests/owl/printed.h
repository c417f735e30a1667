// What the tests of printing share: a printer whose port is a file, and a printout that says what is called.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "owl/brush.h"
#include "owl/print_dc.h"
#include "owl/printout.h"
#include "support/temp_folder.h"
#include "tests/owl/rendered_pages.h"
#include "tests/owl/test_printer.h"

namespace owl_test {

/// The default printer, which writes what it prints to a file. Each has a name of its own: Wine sends the
/// jobs of a printer to the former one of that name if a job of that was given up.
class FilePrinter {
public:
    const char* Name() const { return m_name.c_str(); }
    const std::string& Problem() const { return m_printer.Problem(); }
    std::string File() const { return m_folder.File("printed.ps"); }
    /// Whether a job has come out.
    bool HasPrinted() const { return std::filesystem::exists(File()); }
    RenderedPages Pages() const { return RenderedPages(File()); }

private:
    static std::string NewName() {
        static int count = 0;
        return "lvx file printer " + std::to_string(++count);
    }

    lvx_test::TempFolder m_folder;
    const std::string m_name = NewName();
    TestPrinter m_printer{UnixPath(m_folder.Path()) + "/printed.ps", m_name};
    DefaultPrinter m_isDefault{m_name.c_str()};
};

/// A document of pages of one colour each, which notes the calls.
class ColouredPages : public owl::TPrintout {
public:
    explicit ColouredPages(std::vector<owl::TColor> theColours)
        : TPrintout("Coloured pages"), colours(std::move(theColours)) {}

    void GetDialogInfo(int& minPage, int& maxPage, int& selFromPage, int& selToPage) override {
        calls += "info ";
        TPrintout::GetDialogInfo(minPage, maxPage, selFromPage, selToPage);
        if (info)
            info(minPage, maxPage, selFromPage, selToPage);
    }
    void SetPrintParams(owl::TPrintDC* dc, owl::TSize pageSize) override {
        calls += dc != nullptr ? "dc " : "no-dc ";
        TPrintout::SetPrintParams(dc, pageSize);
    }
    bool HasPage(int page) override { return page >= 1 && page <= static_cast<int>(colours.size()); }
    void BeginPrinting() override {
        calls += "( ";
        if (begin)
            begin();
    }
    void BeginDocument(int startPage, int endPage, unsigned flags) override {
        calls += "[ ";
        from = startPage;
        to = endPage;
        documentFlags = flags;
    }
    void PrintPage(int page, owl::TRect& rect, unsigned flags) override {
        calls += std::to_string(page) + " ";
        pageRect = rect;
        pageFlags = flags;
        GetPrintDC()->FillRect(rect, owl::TBrush(colours[static_cast<std::size_t>(page - 1)]));
        if (print)
            print(page);
    }
    void EndDocument() override { calls += "] "; }
    void EndPrinting() override { calls += ") "; }

    std::vector<owl::TColor> colours;
    /// What is called, in its order.
    std::string calls;
    int from = -1;
    int to = -1;
    unsigned documentFlags = 0;
    unsigned pageFlags = 0;
    owl::TRect pageRect;
    std::function<void(int&, int&, int&, int&)> info;
    std::function<void()> begin;
    std::function<void(int page)> print;
};

}  // namespace owl_test
