// The system's dialogs and printing, as often as there is time for.
#include <stdexcept>

#include "leaks.h"
#include "owl/choose_font_dialog.h"
#include "owl/open_save_dialog.h"
#include "owl/print_dialog.h"
#include "owl/printer.h"
#include "tests/owl/driven_dialog.h"
#include "tests/owl/printed.h"

namespace {

using owl::TFrameWindow;

/// Shows a dialog that ends at once by OK, by Cancel, or by an exception.
template <class Dialog, class Data>
void RunEachWay(TFrameWindow& desk, Data& data) {
    desk::Driven<Dialog> agreed(&desk, data);
    agreed.action = [&] { agreed.PostMessage(WM_COMMAND, IDOK); };
    EXPECT_EQ(IDOK, agreed.Execute());
    desk::Driven<Dialog> cancelled(&desk, data);
    cancelled.action = [&] { cancelled.CmCancel(); };
    EXPECT_EQ(IDCANCEL, cancelled.Execute());
    desk::Driven<Dialog> failed(&desk, data);
    failed.setup = [] { throw std::domain_error("in SetupWindow"); };
    EXPECT_THROW(failed.Execute(), std::domain_error);
}

struct FontDialogs {
    static constexpr const char* name = "dialogs_for_fonts";
    static constexpr int rounds = 10;

    explicit FontDialogs(TFrameWindow& frame) : desk(frame) {}

    void Round() {
        owl::TChooseFontDialog::TData data;
        data.Flags = CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT;
        ::lstrcpyA(data.LogFont.lfFaceName, "Arial");
        data.LogFont.lfHeight = -16;
        RunEachWay<owl::TChooseFontDialog>(desk, data);
    }

    TFrameWindow& desk;
};

struct FileDialogs {
    static constexpr const char* name = "dialogs_for_files";
    static constexpr int rounds = 10;

    explicit FileDialogs(TFrameWindow& frame) : desk(frame) {}

    void Round() {
        owl::TOpenSaveDialog::TData data(OFN_NOCHANGEDIR, "All|*.*");
        data.FileName = "a.txt";
        data.InitialDir = "C:\\windows";
        RunEachWay<owl::TFileSaveDialog>(desk, data);
    }

    TFrameWindow& desk;
};

struct Printing {
    explicit Printing(TFrameWindow& frame) : desk(frame) { EXPECT_EQ("", device.Problem()); }

    TFrameWindow& desk;
    owl_test::FilePrinter device;
};

struct PrintDialogs : Printing {
    static constexpr const char* name = "dialogs_for_printing";
    static constexpr int rounds = 10;
    using Printing::Printing;

    void Round() {
        owl::TPrintDialog::TData data;
        data.MaxPage = 3;
        RunEachWay<owl::TPrintDialog>(desk, data);
    }
};

struct PrinterContexts : Printing {
    static constexpr const char* name = "contexts_of_a_printer";
    static constexpr int rounds = 200;
    using Printing::Printing;

    void Round() {
        owl::TPrintDialog::TData data;
        ASSERT_TRUE(owl::TPrintDialog(&desk, data).ChooseDefault());
        const owl::TPrintDC dc(data.GetDriverName(), data.GetDeviceName(), nullptr, data.GetDevMode());
        const owl::TIC information(data.GetDriverName(), data.GetDeviceName(), nullptr, nullptr);
    }
};

struct Jobs : Printing {
    static constexpr const char* name = "jobs_that_are_printed";
    static constexpr int rounds = 50;
    using Printing::Printing;

    void Round() {
        owl::TPrinter printer;
        owl_test::ColouredPages pages({owl::TColor::LtRed, owl::TColor::LtBlue});
        EXPECT_TRUE(printer.Print(&desk, pages, false));
    }
};

struct Failing : owl_test::ColouredPages {
    Failing() : ColouredPages({owl::TColor::LtRed}) {}

    void PrintPage(int page, owl::TRect& rect, unsigned flags) override {
        ColouredPages::PrintPage(page, rect, flags);
        throw std::domain_error("in PrintPage");
    }
};

struct FailedJobs : Printing {
    static constexpr const char* name = "jobs_whose_printout_throws";
    static constexpr int rounds = 50;
    using Printing::Printing;

    void Round() {
        owl::TPrinter printer;
        Failing pages;
        EXPECT_THROW(printer.Print(&desk, pages, false), std::domain_error);
    }
};

using Kinds = testing::Types<FontDialogs, FileDialogs, PrintDialogs, PrinterContexts, Jobs, FailedJobs>;

}  // namespace

namespace owl_test {

INSTANTIATE_TYPED_TEST_SUITE_P(Dialogs, Leaks, Kinds, KindName);

}  // namespace owl_test
