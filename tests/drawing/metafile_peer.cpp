// The second process of the test of metafiles on the clipboard: plays what lies there, by the system's calls
// alone, and writes what there is to be seen.
//
// usage: lvx_metafile_peer FILE      writes the units and the size, and a letter for each square centimetre
//
// Exits with 1 if there is no metafile on the clipboard.
#include <windows.h>

#include <fstream>
#include <string>

namespace {

constexpr int centimetre = 100;

char letter(COLORREF colour) {
    switch (colour) {
        case RGB(255, 255, 255):
            return '.';
        case RGB(255, 0, 0):
            return 'R';
        case RGB(0, 0, 255):
            return 'B';
        default:
            return '?';
    }
}

/// A white sheet that is large enough, in the units of the metafile.
class Sheet {
public:
    explicit Sheet(int mode) : m_dc(::CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = side;
        info.bmiHeader.biHeight = side;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        ::SelectObject(m_dc, m_bitmap);
        ::PatBlt(m_dc, 0, 0, side, side, WHITENESS);
        ::SetMapMode(m_dc, mode);
    }
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;
    ~Sheet() {
        ::DeleteDC(m_dc);
        ::DeleteObject(m_bitmap);
    }

    void Play(HMETAFILE metafile) const { ::PlayMetaFile(m_dc, metafile); }
    std::string Row(int row, int columns) const {
        std::string text;
        for (int column = 0; column < columns; ++column) {
            text += letter(
                ::GetPixel(m_dc, column * centimetre + centimetre / 2, -row * centimetre - centimetre / 2));
        }
        return text;
    }

private:
    static constexpr int side = 500;

    HDC m_dc;
    HBITMAP m_bitmap = nullptr;
};

void write(const METAFILEPICT& picture, std::ostream& out) {
    const Sheet sheet(static_cast<int>(picture.mm));
    sheet.Play(picture.hMF);
    out << "mode " << picture.mm << ", " << picture.xExt << " by " << picture.yExt << '\n';
    for (int row = 0; row < picture.yExt / centimetre; ++row) {
        out << sheet.Row(row, static_cast<int>(picture.xExt / centimetre)) << '\n';
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2 || !::OpenClipboard(nullptr)) {
        return 2;
    }
    const HANDLE block = ::GetClipboardData(CF_METAFILEPICT);
    if (block != nullptr) {
        std::ofstream out(argv[1], std::ios::binary);
        write(*static_cast<const METAFILEPICT*>(::GlobalLock(block)), out);
        ::GlobalUnlock(block);
    }
    ::CloseClipboard();
    return block != nullptr ? 0 : 1;
}
