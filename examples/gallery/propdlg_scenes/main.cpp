// Dialogs with tabs in every style, and the system's own property sheet with the same pages.
#include <windows.h>

#include <prsht.h>

#include <array>
#include <thread>
#include <vector>

#include "gallery.h"
#include "lvx/propdlg/property_dialog.h"
#include "lvx/propdlg/property_page.h"
#include "owl/application.h"
#include "owl/frame_window.h"
#include "resource_ids.h"
#include "support/user.h"

namespace {

class Page : public LVXPropertyPage {
public:
    explicit Page(int resource) : LVXPropertyPage(resource, nullptr) {}

    void SetupWindow() override {
        LVXPropertyPage::SetupWindow();
        SetDlgItemText(IDC_WIDTH, "0.25");
        SendDlgItemMessage(IDC_STYLE, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("Dashes"));
        SendDlgItemMessage(IDC_STYLE, CB_SETCURSEL);
        CheckDlgButton(IDC_ROUND, BST_CHECKED);
    }
};

constexpr std::array pages_in_turn = {IDD_LINE, IDD_FILL, IDD_FONT, IDD_PICTURE};

struct Look {
    Tab::Style style;
    std::vector<const char*> tabs;
    int resource = IDD_PROPERTIES;
    owl::TResId bitmap = owl::TResId();
    bool masked = false;
    int selected = 0;
    int disabled = -1;
    /// Scrolled by so many tabs to the right.
    int scrolled = 0;
    int fixedWidth = 48;
};

class Properties : public TPropertyDialog {
public:
    Properties(owl::TWindow* parent, const Look& look)
        : TPropertyDialog(parent, look.resource, look.style, look.bitmap, look.masked, nullptr),
          m_look(look) {
        for (std::size_t i = 0; i < look.tabs.size(); ++i) {
            m_pages.push_back(new Page(pages_in_turn[i % pages_in_turn.size()]));
            Add(look.tabs[i], m_pages.back(), static_cast<int>(i) != look.disabled);
        }
    }
    ~Properties() override {
        for (Page* const page : m_pages)
            delete page;
    }

    void SetupWindow() override {
        TPropertyDialog::SetupWindow();
        SetActiveColor(owl::TColor(255, 255, 200));
        SetFixedTabWidth(m_look.fixedWidth);
        SelectTab(m_look.selected);
        for (int i = 0; i < m_look.scrolled; ++i)
            GetTabControl()->NextOrigin(1);
    }

private:
    Look m_look;
    std::vector<Page*> m_pages;
};

struct Stage {
    Stage() : application("gallery") {
        application.SetMainWindow(new owl::TFrameWindow(nullptr, "gallery"));
        application.GetMainWindow()->Attr.X = 40;
        application.GetMainWindow()->Attr.Y = 40;
        application.GetMainWindow()->Attr.W = 420;
        application.GetMainWindow()->Attr.H = 300;
        application.GetMainWindow()->Create();
    }
    owl::TApplication application;
};

void Show(const Look& look) {
    Stage stage;
    gallery::PoseWhenInFront("Properties");
    Properties(stage.application.GetMainWindow(), look).Execute();
}

INT_PTR CALLBACK NoAnswer(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

void ShowSheet(const std::vector<const char*>& tabs) {
    const Stage stage;
    std::vector<PROPSHEETPAGEA> pages(tabs.size());
    for (std::size_t i = 0; i < tabs.size(); ++i) {
        pages[i] = {};
        pages[i].dwSize = sizeof pages[i];
        pages[i].dwFlags = PSP_USETITLE;
        pages[i].hInstance = ::GetModuleHandleA(nullptr);
        pages[i].pszTemplate =
            reinterpret_cast<const char*>(static_cast<ULONG_PTR>(pages_in_turn[i % pages_in_turn.size()]));
        pages[i].pszTitle = tabs[i];
        pages[i].pfnDlgProc = &NoAnswer;
    }
    PROPSHEETHEADERA sheet{};
    sheet.dwSize = sizeof sheet;
    sheet.dwFlags = PSH_PROPSHEETPAGE | PSH_NOAPPLYNOW;
    sheet.hwndParent = stage.application.GetMainWindow()->GetHandle();
    sheet.pszCaption = "Properties";
    sheet.nPages = static_cast<UINT>(pages.size());
    sheet.ppsp = pages.data();
    // It finds its place some time after it shows.
    std::thread([] {
        user::WaitForShown(nullptr, "Properties");
        ::Sleep(1000);
        gallery::PoseWhenInFront("Properties");
    }).detach();
    ::PropertySheetA(&sheet);
}

const std::vector<const char*> few = {"&Line", "&Fill", "F&ont", "&Picture"};
const std::vector<const char*> many = {"&Line",   "&Fill",   "F&ont", "&Picture", "Sh&ape",
                                       "La&yers", "&Shadow", "&Grid", "P&aper",   "P&rinter"};
const std::vector<const char*> long_ones = {"Line and\rends", "Fill", "Font of the labels", "Picture"};
const std::vector<const char*> five = {"&Line", "&Fill", "F&ont", "&Picture", "&Box"};

}  // namespace

int main(int argc, char** argv) {
    return gallery::Run(
        argc, argv,
        {
            {"tabs-plain", "Tabs as wide as their texts; one is disabled",
             [] { Show({.style = Tab::SingleHeight, .tabs = few, .disabled = 2}); }},
            {"tabs-fixed", "Tabs of one width",
             [] { Show({.style = Tab::FixedWidth, .tabs = few, .selected = 1, .fixedWidth = 64}); }},
            {"tabs-margins", "Wide margins",
             [] { Show({.style = Tab::WideMargins, .tabs = few, .selected = 1}); }},
            {"tabs-double", "Room for two lines",
             [] { Show({.style = Tab::DoubleHeight, .tabs = long_ones, .selected = 2, .fixedWidth = 40}); }},
            {"tabs-coloured", "The selected tab in a colour",
             [] { Show({.style = Tab::ColorActive | Tab::WideMargins, .tabs = few, .selected = 1}); }},
            {"tabs-collapsing", "The disabled tab does not show",
             [] { Show({.style = Tab::Collapsing | Tab::WideMargins, .tabs = few, .disabled = 1}); }},
            {"tabs-justified", "The tabs fill their row",
             [] { Show({.style = Tab::Justified, .tabs = few}); }},
            {"tabs-stacked", "Several rows; that of the selected tab stands next to the page",
             [] { Show({.style = Tab::Stacked | Tab::WideMargins, .tabs = many, .selected = 7}); }},
            {"tabs-stacked-double", "Rows of two lines",
             [] {
                 Show({.style = Tab::Stacked | Tab::DoubleHeight | Tab::WideMargins,
                       .tabs = {"Line and ends", "Fill", "Font", "Picture", "Layers", "Shadow"},
                       .selected = 4});
             }},
            {"tabs-scrolled", "More tabs than there is room for; the last one is cut",
             [] { Show({.style = Tab::WideMargins, .tabs = many, .scrolled = 2}); }},
            {"tabs-scrolled-end", "Scrolled to the end",
             [] { Show({.style = Tab::WideMargins, .tabs = many, .selected = 9}); }},
            {"tabs-small-font", "The small font in the controls",
             [] { Show({.style = Tab::UseSmallFont | Tab::WideMargins, .tabs = few}); }},
            {"tabs-bitmaps", "A share of a bitmap on each tab",
             [] {
                 Show({.style = Tab::SingleHeight,
                       .tabs = five,
                       .bitmap = owl::TResId(IDB_SIGNS),
                       .selected = 3});
             }},
            {"tabs-masked", "The same with a mask, on a coloured tab",
             [] {
                 Show({.style = Tab::ColorActive,
                       .tabs = five,
                       .bitmap = owl::TResId(IDB_MASKED_SIGNS),
                       .masked = true,
                       .selected = 3});
             }},
            {"tabs-on-right", "Buttons to the right",
             [] { Show({.style = Tab::ButtonsOnRight, .tabs = few, .resource = IDD_BUTTONS_ON_RIGHT}); }},
            {"tabs-wizard", "A wizard: no tabs, a line above the buttons",
             [] { Show({.style = Tab::WizardFrame, .tabs = few, .resource = IDD_WIZARD}); }},
            {"tabs-system", "For comparison: the system's property sheet with the same pages",
             [] { ShowSheet(few); }},
            {"tabs-system-many", "For comparison: the system's property sheet, many tabs",
             [] { ShowSheet(many); }},
        });
}
