// What a PostScript file looks like: Ghostscript renders its pages, and a test looks at their pixels. It is a
// program of the system below Wine, which starts it but does not wait for it.
#pragma once

#include <windows.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "owl/color.h"
#include "support/temp_folder.h"

namespace owl_test {

/// A path as the system below Wine has it.
inline std::string UnixPath(const std::string& path) {
    using Convert = char*(CDECL*)(const wchar_t*);
    const auto convert = reinterpret_cast<Convert>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleA("kernel32.dll"), "wine_get_unix_file_name")));
    if (convert == nullptr)
        return path;
    char* const converted = convert(std::filesystem::path(path).c_str());
    const std::string result = converted != nullptr ? converted : "";
    ::HeapFree(::GetProcessHeap(), 0, converted);
    return result;
}

/// A page of pixels.
class RenderedPage {
public:
    /// A picture of the simplest kind that Ghostscript writes: "P6", width, height, 255, three bytes a pixel.
    explicit RenderedPage(const std::string& file) {
        std::ifstream in(file, std::ios::binary);
        std::string kind;
        int most = 0;
        in >> kind;
        SkipComments(in);
        in >> m_width >> m_height >> most;
        in.get();
        m_pixels.assign(std::istreambuf_iterator<char>(in), {});
        if (kind != "P6" || most != 255 ||
            m_pixels.size() != std::size_t(m_width) * std::size_t(m_height) * 3)
            m_width = m_height = 0;
    }

    /// 0 if it could not be read.
    int Width() const { return m_width; }
    int Height() const { return m_height; }
    owl::TColor At(int x, int y) const {
        if (x < 0 || x >= m_width || y < 0 || y >= m_height)
            return owl::TColor::Transparent;
        const char* const pixel =
            m_pixels.data() + (std::size_t(y) * std::size_t(m_width) + std::size_t(x)) * 3;
        return owl::TColor(pixel[0], pixel[1], pixel[2]);
    }
    bool IsEmpty() const { return m_pixels.find_first_not_of('\xFF') == std::string::npos; }

private:
    static void SkipComments(std::istream& in) {
        std::string line;
        while (in >> std::ws && in.peek() == '#')
            std::getline(in, line);
    }

    int m_width = 0;
    int m_height = 0;
    std::string m_pixels;
};

/// The pages of a PostScript file, 72 pixels to the inch.
class RenderedPages {
public:
    explicit RenderedPages(const std::string& postscript) {
        const std::string folder = UnixPath(m_folder.Path());
        Run("gs -q -dSAFER -dBATCH -dNOPAUSE -sDEVICE=ppmraw -r72 -sOutputFile=" + folder + "/%d.ppm " +
            UnixPath(postscript) + " >" + folder + "/log 2>&1; echo $? >" + folder + "/part; mv " + folder +
            "/part " + folder + "/done");
        for (int page = 1; std::filesystem::exists(m_folder.File(std::to_string(page) + ".ppm")); ++page)
            m_pages.emplace_back(m_folder.File(std::to_string(page) + ".ppm"));
    }

    /// What Ghostscript said; empty if all was well.
    const std::string& Problem() const { return m_problem; }
    std::size_t size() const { return m_pages.size(); }
    const RenderedPage& operator[](std::size_t page) const { return m_pages.at(page); }

private:
    void Run(const std::string& command) {
        std::string line = "Z:\\bin\\sh -c \"" + command + "\"";
        STARTUPINFOA startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process{};
        if (!::CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                              &process)) {
            m_problem = "/bin/sh cannot be started";
            return;
        }
        // What stands in `process` now is of no use: Wine has no handles for such a program.
        const DWORD start = ::GetTickCount();
        while (!std::filesystem::exists(m_folder.File("done")) && ::GetTickCount() - start < 60000)
            ::Sleep(20);
        const std::string status = Contents("done");
        m_problem = status == "0\n" ? "" : "gs ends with " + status + Contents("log");
    }
    std::string Contents(const std::string& name) const {
        std::ifstream file(m_folder.File(name), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

    lvx_test::TempFolder m_folder;
    std::string m_problem;
    std::vector<RenderedPage> m_pages;
};

}  // namespace owl_test
