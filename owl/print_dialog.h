// owl/print_dialog.h
//
// The system's dialogs to choose a printer, the pages and the copies, and to set a printer up.
//
//     owl::TPrintDialog::TData data;
//     data.MaxPage = data.ToPage = 12;
//     if (owl::TPrintDialog(this, data).Execute() == IDOK)
//         Print(data);
//
// The data are the caller's and must live as long as the dialog. DoExecute reads them when it begins and
// fills them in when the user agreed. With PD_PRINTSETUP in the flags it is the dialog for setting up.
//
// Does not: make a context of the printer (TPrintDC does), ask about templates of one's own.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "owl/common_dialog.h"

namespace owl {

class OWL_EXPORT TPrintDialog : public TCommonDialog {
public:
    /// What the dialog is to offer, and what was chosen. Owns the names and the settings of the printer; a
    /// copy has copies of its own.
    class OWL_EXPORT TData {
    public:
        /// PD_ values. PD_PAGENUMS, PD_SELECTION, PD_COLLATE and PD_PRINTTOFILE come back; those about hooks,
        /// templates and contexts are the dialog's own.
        DWORD Flags = 0;
        /// Why the dialog could not be shown, as TXCommonDialog tells; else 0.
        DWORD Error = 0;
        /// The range of pages, in and out. Meant if Flags has PD_PAGENUMS.
        int FromPage = 0;
        int ToPage = 0;
        /// What the range can be; both 0 if nobody knows. All are taken as 0 to 65534, and the range inside.
        int MinPage = 0;
        int MaxPage = 0;
        /// How often each page is wanted. Unless Flags has PD_USEDEVMODECOPIES, this is for who prints to see
        /// to, not for the printer.
        int Copies = 1;

        /// Whether there is the name of a printer.
        bool HasDevice() const { return !m_device.empty(); }
        /// The printer as the calls for contexts want it. Empty texts if none was chosen.
        const char* GetDriverName() const { return m_driver.c_str(); }
        const char* GetDeviceName() const { return m_device.c_str(); }
        /// The printer's port; "FILE:" when the user chose to print to a file.
        const char* GetOutputName() const { return m_output.c_str(); }
        /// The printer's settings; null if there are none, and the printer's own ones are meant. Good until
        /// they are set or the dialog is shown.
        const DEVMODEA* GetDevMode() const;
        DEVMODEA* GetDevMode();

        /// Null texts are empty ones. The settings stay: clear those of another printer.
        void SetDevNames(const char* driver, const char* device, const char* output);
        /// Copies `mode` with what the driver keeps behind it; null clears, as does one whose dmSize is too
        /// small.
        void SetDevMode(const DEVMODEA* mode);
        void ClearDevNames();
        void ClearDevMode();

    private:
        std::string m_driver;
        std::string m_device;
        std::string m_output;
        std::vector<std::byte> m_devMode;
    };

    /// A null `title` leaves the system's.
    TPrintDialog(TWindow* parent, TData& data, const char* title = nullptr, TModule* module = nullptr);
    ~TPrintDialog() override;

    /// IDOK when the user agreed, else IDCANCEL and the data are as they were. Throws TXCommonDialog, also if
    /// there is no printer, or what a handler threw.
    int DoExecute() override;
    /// Without a dialog: makes the default printer, with its own settings, that of the data. False if there
    /// is none; Error then tells why, and the rest of the data is as it was. Copies and pages stay.
    bool ChooseDefault();

protected:
    TData& Data;
    /// What the system works on while the dialog is shown.
    PRINTDLGA pd{};

private:
    void RequirePrinter();
    bool AskForDefault();
    void FillIn();
    void TakeOut();
    void TakePrinter();
};

}  // namespace owl
