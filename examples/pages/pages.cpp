// Text files as pages of one window, with two menus that change while the program runs: the files that were
// used last, and the pages that are open. docs/menus.md tells how it is made.
//
// usage: pages [NAME [FILE...]]
//
// Opens each FILE. NAME names the settings where the recent files are kept.
#include <fstream>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "lvx/files/mru_list.h"
#include "lvx/files/settings.h"
#include "lvx/menus/menu.h"
#include "owl/application.h"
#include "owl/command_enabler.h"
#include "owl/dc.h"
#include "owl/mdi.h"
#include "owl/open_save_dialog.h"

#include "pages_ids.h"

class Call : public CallBack<LVXMenuItem*> {
public:
    explicit Call(std::function<void()> function) : m_function(std::move(function)) {}
    bool operator()(LVXMenuItem*) override {
        m_function();
        return true;
    }

private:
    std::function<void()> m_function;
};

class Page : public owl::TMDIChild {
public:
    Page(owl::TMDIClient& client, const std::string& title, std::string text)
        : TMDIChild(client, title.c_str()), m_text(std::move(text)) {}
    /// Notes the item that stands for the page in a menu.
    void SetItem(LVXMenuItem* item) { m_item = item; }
    // An item leaves its menu when it is deleted.
    void CleanupWindow() override {
        delete std::exchange(m_item, nullptr);
        TMDIChild::CleanupWindow();
    }
    void Paint(owl::TDC& dc, bool, owl::TRect&) override {
        owl::TRect room = GetClientRect().InflatedBy(-6, -4);
        dc.DrawText(m_text, room, DT_EXPANDTABS | DT_NOPREFIX);
    }
    void EvMDIActivate(HWND activated, HWND deactivated) {
        TMDIChild::EvMDIActivate(activated, deactivated);
        if (m_item != nullptr)
            m_item->check(activated == GetHandle());
    }

private:
    std::string m_text;
    LVXMenuItem* m_item = nullptr;

    DECLARE_RESPONSE_TABLE(Page);
};

DEFINE_RESPONSE_TABLE1(Page, owl::TMDIChild)
    EV_WM_MDIACTIVATE,
END_RESPONSE_TABLE;

class PagesWindow : public owl::TMDIFrame {
public:
    explicit PagesWindow(LVXUtilities::Settings& settings)
        : TMDIFrame("Pages", IDM_PAGES), m_recent(this, CM_RECENT, behind_open, settings) {
        Attr.AccelTable = IDA_PAGES;
    }
    // Pages that are open still have items in the menu.
    ~PagesWindow() override { Destroy(); }

    void SetupWindow() override {
        TMDIFrame::SetupWindow();
        m_bar = std::make_unique<LVXMenu>(this);
        m_pages = new LVXPopupMenu("&Pages");
        m_bar->addItem(m_pages);
        m_maximised = new LVXMenuItem("&Maximised", new Call([this] { ToggleMaximised(); }));
        m_closeAll = new LVXMenuItem("&Close all", new Call([this] { GetClientWindow()->CloseChildren(); }));
        m_pages->addItem(m_maximised);
        m_pages->addItem(m_closeAll);
        m_pages->addSeparator();
        m_recent.readFromINI();
    }

    void Open(const std::string& file) {
        std::ifstream stream(file);
        std::ostringstream text;
        if (!stream || !(text << stream.rdbuf())) {
            m_recent.removeFile(file);
            MessageBox((file + " cannot be read.").c_str(), "Pages", MB_ICONEXCLAMATION);
            return;
        }
        OpenPage(file, text.str());
        m_recent.addFile(file);
    }

    LRESULT EvCommand(UINT id, HWND control, UINT code) override {
        if (control == nullptr && LVXMenu::MenuItemSelected(id))
            return 0;
        return TMDIFrame::EvCommand(id, control, code);
    }
    void EvCommandEnable(owl::TCommandEnabler& enabler) override {
        if (!LVXMenu::MenuItemEnable(enabler))
            TMDIFrame::EvCommandEnable(enabler);
    }
    // Before the base asks for each entry.
    void EvInitMenuPopup(HMENU menu, UINT position, bool systemMenu) {
        const owl::TMDIChild* const page = GetClientWindow()->GetActiveMDIChild();
        m_maximised->enable(page != nullptr);
        m_maximised->check(page != nullptr && page->IsZoomed());
        m_closeAll->enable(page != nullptr);
        TMDIFrame::EvInitMenuPopup(menu, position, systemMenu);
    }

private:
    static constexpr int behind_open = 3;

    void OpenPage(const std::string& title, const std::string& text) {
        owl::TMDIClient& client = *GetClientWindow();
        auto* const page = new Page(client, title, text);
        const auto activate = [page, &client] { client.ActivateChild(*page); };
        const std::string label = "&" + std::to_string(++m_opened) + " " + title;
        auto* const item = new LVXMenuItem(label, new Call(activate));
        m_pages->addItem(item);
        page->SetItem(item);
        page->Create();
    }
    void ToggleMaximised() {
        owl::TMDIChild* const page = GetClientWindow()->GetActiveMDIChild();
        page->ShowWindow(page->IsZoomed() ? SW_RESTORE : SW_MAXIMIZE);
    }

    void CmNew() { OpenPage("New", "A new page."); }
    void CmOpen() {
        owl::TOpenSaveDialog::TData data(OFN_EXPLORER | OFN_FILEMUSTEXIST,
                                         "Texts (*.txt)|*.txt|All files|*.*");
        if (owl::TFileOpenDialog(this, data).Execute() == IDOK)
            Open(data.FileName);
    }
    void CmRecent(UINT id) { Open(m_recent.getFile(static_cast<int>(id) - CM_RECENT)); }
    void CmExit() { CloseWindow(); }

    LVXMRUList m_recent;
    std::unique_ptr<LVXMenu> m_bar;
    LVXPopupMenu* m_pages = nullptr;
    LVXMenuItem* m_maximised = nullptr;
    LVXMenuItem* m_closeAll = nullptr;
    int m_opened = 0;

    DECLARE_RESPONSE_TABLE(PagesWindow);
};

DEFINE_RESPONSE_TABLE1(PagesWindow, owl::TMDIFrame)
    EV_COMMAND(CM_NEW, CmNew), EV_COMMAND(CM_OPEN, CmOpen), EV_COMMAND(CM_EXIT, CmExit),
        EV_COMMAND_AND_ID(CM_RECENT + 1, CmRecent), EV_COMMAND_AND_ID(CM_RECENT + 2, CmRecent),
        EV_COMMAND_AND_ID(CM_RECENT + 3, CmRecent), EV_COMMAND_AND_ID(CM_RECENT + 4, CmRecent),
        EV_COMMAND_AND_ID(CM_RECENT + 5, CmRecent), EV_COMMAND_AND_ID(CM_RECENT + 6, CmRecent),
        EV_WM_INITMENUPOPUP,
END_RESPONSE_TABLE;

class PagesProgram : public owl::TApplication {
public:
    PagesProgram(LVXUtilities::Settings& settings, std::vector<std::string> files)
        : TApplication("Pages"), m_window(new PagesWindow(settings)), m_files(std::move(files)) {}

    void InitMainWindow() override { SetMainWindow(m_window); }
    // When the window stands: a box that tells of a file lies above it.
    void InitInstance() override {
        TApplication::InitInstance();
        for (const std::string& file : m_files)
            m_window->Open(file);
    }

private:
    PagesWindow* m_window;
    std::vector<std::string> m_files;
};

int main(int argc, char** argv) {
    LVXUtilities::Settings settings(argc > 1 ? argv[1] : "Pages", false);
    return PagesProgram(settings, {argv + (argc > 1 ? 2 : argc), argv + argc}).Run();
}
