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

    TestPrinter() {
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
        std::string printer = name;
        char port[] = "FILE:", driverName[] = "lvx test", processor[] = "WinPrint", type[] = "RAW";
        PRINTER_INFO_2A info{};
        info.pPrinterName = printer.data();
        info.pPortName = port;
        info.pDriverName = driverName;
        info.pPrintProcessor = processor;
        info.pDatatype = type;
        m_printer = ::AddPrinterA(nullptr, 2, reinterpret_cast<BYTE*>(&info));
        return m_printer || ::GetLastError() == ERROR_PRINTER_ALREADY_EXISTS;
    }

    std::string m_description;
    std::string m_problem;
    HANDLE m_printer = nullptr;
};

}  // namespace owl_test
