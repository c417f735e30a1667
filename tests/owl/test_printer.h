// A printer that writes PostScript to files. The system needs no print service for it: only its own driver
// for such printers and a description of one, which is made here. It goes with this object.
#pragma once

#include <windows.h>
#include <winspool.h>

#include <fstream>
#include <string>

namespace owl_test {

class TestPrinter {
public:
    static constexpr const char* name = "lvx test printer";

    /// What it prints goes to `port`: a file by its path on the system below Wine, or "FILE:", which asks for
    /// one unless the job names it.
    explicit TestPrinter(const std::string& port = "FILE:", const std::string& printerName = name)
        : m_name(printerName), m_port(port) {
        char folder[MAX_PATH];
        ::GetTempPathA(sizeof folder, folder);
        m_description = std::string(folder) + "lvxtest.ppd";
        std::ofstream(m_description) << description;
        m_problem = AddDriver() ? "" : "AddPrinterDriverEx " + std::to_string(::GetLastError());
        if (m_problem.empty() && !AddPrinter())
            m_problem = "AddPrinter " + std::to_string(::GetLastError());
    }
    ~TestPrinter() {
        if (m_printer) {
            ::DeletePrinter(m_printer);
            ::ClosePrinter(m_printer);
        }
        ::DeleteFileA(m_description.c_str());
    }
    TestPrinter(const TestPrinter&) = delete;
    TestPrinter& operator=(const TestPrinter&) = delete;

    /// What went wrong; empty when there is a printer.
    const std::string& Problem() const { return m_problem; }

private:
    // 300 dots to the inch, on paper of 600 by 300 points without margins.
    static constexpr const char* description =
        "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n*LanguageVersion: English\n"
        "*LanguageEncoding: ISOLatin1\n*PCFileName: \"LVXTEST.PPD\"\n*Product: \"(lvx test)\"\n"
        "*PSVersion: \"(3010.000) 0\"\n*Manufacturer: \"lvx\"\n*ModelName: \"lvx test\"\n"
        "*NickName: \"lvx test\"\n*ShortNickName: \"lvx test\"\n*LanguageLevel: \"3\"\n*ColorDevice: True\n"
        "*DefaultColorSpace: RGB\n*FileSystem: False\n*Throughput: \"1\"\n*LandscapeOrientation: Plus90\n"
        "*TTRasterizer: Type42\n*DefaultResolution: 300dpi\n*OpenUI *PageSize: PickOne\n"
        "*DefaultPageSize: Small\n*PageSize Small/Small: \"<</PageSize[600 300]>>setpagedevice\"\n"
        "*CloseUI: *PageSize\n*OpenUI *PageRegion: PickOne\n*DefaultPageRegion: Small\n"
        "*PageRegion Small/Small: \"<</PageSize[600 300]>>setpagedevice\"\n*CloseUI: *PageRegion\n"
        "*DefaultImageableArea: Small\n*ImageableArea Small/Small: \"0 0 600 300\"\n"
        "*DefaultPaperDimension: Small\n*PaperDimension Small/Small: \"600 300\"\n*DefaultFont: Courier\n"
        "*Font Courier: Standard \"(001.004)\" Standard ROM\n";

    bool AddDriver() {
        char driver[] = "wineps.drv", driverName[] = "lvx test", type[] = "RAW";
        DRIVER_INFO_3A info{};
        info.cVersion = 3;
        info.pName = driverName;
        info.pDriverPath = driver;
        info.pDataFile = m_description.data();
        info.pConfigFile = driver;
        info.pDefaultDataType = type;
        const DWORD flags = APD_COPY_NEW_FILES | APD_COPY_FROM_DIRECTORY;
        return ::AddPrinterDriverExA(nullptr, 3, reinterpret_cast<BYTE*>(&info), flags) ||
               ::GetLastError() == ERROR_PRINTER_DRIVER_ALREADY_INSTALLED;
    }

    bool AddPrinter() {
        char driverName[] = "lvx test", processor[] = "WinPrint", type[] = "RAW";
        PRINTER_INFO_2A info{};
        info.pPrinterName = m_name.data();
        info.pPortName = m_port.data();
        info.pDriverName = driverName;
        info.pPrintProcessor = processor;
        info.pDatatype = type;
        m_printer = ::AddPrinterA(nullptr, 2, reinterpret_cast<BYTE*>(&info));
        // One that a program left behind by dying is taken over, so that it goes with this object as well.
        if (!m_printer && ::GetLastError() == ERROR_PRINTER_ALREADY_EXISTS)
            ::OpenPrinterA(m_name.data(), &m_printer, nullptr);
        return m_printer != nullptr;
    }

    std::string m_name;
    std::string m_port;
    std::string m_description;
    std::string m_problem;
    HANDLE m_printer = nullptr;
};

/// Makes a printer the default one, and the former one again at its end.
class DefaultPrinter {
public:
    explicit DefaultPrinter(const char* name) : m_former(Name()) { ::SetDefaultPrinterA(name); }
    ~DefaultPrinter() { ::SetDefaultPrinterA(m_former.c_str()); }
    DefaultPrinter(const DefaultPrinter&) = delete;
    DefaultPrinter& operator=(const DefaultPrinter&) = delete;

    /// Empty if there is none.
    static std::string Name() {
        char name[256] = "";
        DWORD size = sizeof name;
        return ::GetDefaultPrinterA(name, &size) ? name : "";
    }

private:
    std::string m_former;
};

}  // namespace owl_test
