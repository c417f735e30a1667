#include "bench/propdlg_bench.h"

#include <windows.h>

#include <prsht.h>

#include <array>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "bench/propdlg_ids.h"
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "owl/application.h"

namespace lvx_bench {
namespace {

constexpr int page_count = 20;
constexpr int controls_of_a_page = 20;
constexpr int walks = 2;

// The windows of both belong to one thread and need an application.
owl::TApplication& application() {
    static owl::TApplication instance("bench");
    return instance;
}

void pump() {
    application().PumpWaitingMessages();
}

// How many dialogs with the controls of a page there are in a window.
struct PageCount {
    int pages = 0;

    static BOOL CALLBACK Look(HWND window, LPARAM count) {
        int controls = 0;
        for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
            ++controls;
        std::array<char, 8> name{};
        ::GetClassNameA(window, name.data(), static_cast<int>(name.size()));
        if (controls == controls_of_a_page && std::string_view(name.data()) == "#32770")
            ++reinterpret_cast<PageCount*>(count)->pages;
        return TRUE;
    }
};

std::uint64_t count_pages(HWND dialog) {
    PageCount count;
    ::EnumChildWindows(dialog, &PageCount::Look, reinterpret_cast<LPARAM>(&count));
    return static_cast<std::uint64_t>(count.pages);
}

/// The library's dialog.
class OwnDialog {
public:
    explicit OwnDialog(Tab::Style style) : m_dialog(nullptr, IDD_BENCH_DIALOG, style, nullptr) {
        for (auto& page : m_pages) {
            page = std::make_unique<LVXPropertyPage>(IDD_BENCH_PAGE, nullptr);
            m_dialog.Add("&Page", page.get(), true);
        }
    }
    OwnDialog(const OwnDialog&) = delete;
    OwnDialog& operator=(const OwnDialog&) = delete;
    ~OwnDialog() { Close(); }

    void Open() {
        m_dialog.Create();
        m_dialog.ShowWindow(SW_SHOWNOACTIVATE);
        pump();
    }
    void Select(int tab) {
        m_dialog.SelectTab(tab);
        pump();
    }
    void Close() {
        if (m_dialog.IsWindow())
            m_dialog.Destroy(IDCANCEL);
    }
    HWND Window() const { return m_dialog.GetHandle(); }

private:
    std::array<std::unique_ptr<LVXPropertyPage>, page_count> m_pages;
    TPropertyDialog m_dialog;
};

struct AllPages : OwnDialog {
    AllPages() : OwnDialog(Tab::WideMargins) {}
};
struct PagesOnDemand : OwnDialog {
    PagesOnDemand() : OwnDialog(Tab::WideMargins | Tab::CreateOnDemandAndKeepIt) {}
};

INT_PTR CALLBACK NoAnswer(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

/// The system's property sheet; it makes pages when they are selected, unless it is told to be premature.
class Sheet {
public:
    explicit Sheet(DWORD flags) : m_flags(flags) {}
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;
    ~Sheet() { Close(); }

    void Open() {
        std::array<PROPSHEETPAGEA, page_count> pages{};
        for (PROPSHEETPAGEA& page : pages) {
            page.dwSize = sizeof page;
            page.dwFlags = PSP_USETITLE | m_flags;
            page.hInstance = ::GetModuleHandleA(nullptr);
            page.pszTemplate = reinterpret_cast<const char*>(static_cast<ULONG_PTR>(IDD_BENCH_PAGE));
            page.pszTitle = "&Page";
            page.pfnDlgProc = &NoAnswer;
        }
        PROPSHEETHEADERA header{};
        header.dwSize = sizeof header;
        header.dwFlags = PSH_PROPSHEETPAGE | PSH_NOAPPLYNOW | PSH_MODELESS;
        header.pszCaption = "Properties";
        header.nPages = page_count;
        header.ppsp = pages.data();
        m_window = reinterpret_cast<HWND>(::PropertySheetA(&header));
        if (m_window == nullptr)
            throw std::runtime_error("cannot open a property sheet");
        pump();
    }
    void Select(int tab) {
        ::SendMessageA(m_window, PSM_SETCURSEL, static_cast<WPARAM>(tab), 0);
        pump();
    }
    void Close() {
        if (m_window != nullptr)
            ::DestroyWindow(std::exchange(m_window, nullptr));
    }
    HWND Window() const { return m_window; }

private:
    DWORD m_flags;
    HWND m_window = nullptr;
};

struct PrematureSheet : Sheet {
    PrematureSheet() : Sheet(PSP_PREMATURE) {}
};
struct LazySheet : Sheet {
    LazySheet() : Sheet(0) {}
};

/// A dialog from beginning to end, or up to its first sight.
template <class Dialog>
struct Visit {
    void Open() {
        dialog = std::make_unique<Dialog>();
        dialog->Open();
        pages = count_pages(dialog->Window());
    }
    void WalkAndClose() {
        for (int i = 0; i < walks * page_count; ++i)
            dialog->Select((i + 1) % page_count);
        pages = count_pages(dialog->Window());
        Close();
    }
    void Close() {
        dialog.reset();
        pump();
    }

    std::unique_ptr<Dialog> dialog;
    std::uint64_t pages = 0;
};

template <class Dialog>
Contender whole_visit(const char* name) {
    application();
    const auto visit = std::make_shared<Visit<Dialog>>();
    return {name, nullptr,
            [visit] {
                visit->Open();
                visit->WalkAndClose();
            },
            [visit] { return visit->pages; }, nullptr};
}

template <class Dialog>
Contender opening(const char* name) {
    application();
    const auto visit = std::make_shared<Visit<Dialog>>();
    return {name, nullptr, [visit] { visit->Open(); }, [visit] { return visit->pages == 0 ? 0u : 1u; },
            [visit] { visit->Close(); }};
}

Benchmark make_open_walk_close() {
    return {"propdlg/open-walk-close",
            "dialog",
            1,
            {whole_visit<AllPages>("lvx"), whole_visit<PrematureSheet>("propertysheet")}};
}

Benchmark make_open_on_demand() {
    return {"propdlg/open-on-demand",
            "dialog",
            1,
            {opening<PagesOnDemand>("lvx"), opening<LazySheet>("propertysheet"),
             opening<AllPages>("lvx-all-pages")}};
}

}  // namespace

std::vector<Entry> propdlg_benchmarks() {
    return {{"propdlg/open-walk-close", make_open_walk_close},
            {"propdlg/open-on-demand", make_open_on_demand}};
}

}  // namespace lvx_bench
