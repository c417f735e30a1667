// Prints a calendar on the default printer, a page for each month, or puts a month on the clipboard as a
// metafile. A small document says in which font. Windows only.
//
// usage: calendar FONT YEAR           prints the year in the font that the document FONT holds
//        calendar FONT YEAR MONTH     puts one month on the clipboard
//
// If there is no document FONT it is made. Exits 0, 1 if something failed, 2 for a wrong call.
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

#include "lvx/drawing/metafile.h"
#include "lvx/drawing/my_font.h"
#include "lvx/drawing/port.h"
#include "lvx/drawing/printer.h"
#include "lvx/drawing/region.h"
#include "lvx/store/object_store_file.h"
#include "owl/clipboard.h"
#include "owl/dc.h"
#include "owl/window.h"

namespace {

using namespace std::chrono;

constexpr int columns = 7;
constexpr int rows = 7;  // a title and up to six weeks
constexpr owl::TColor weekend(255, 224, 224);

/// A font that is freed where it was made: within the library.
struct Free {
    void operator()(LVXFont* font) const { font->free(); }
};
using OwnedFont = std::unique_ptr<LVXFont, Free>;

/// A sheet of `width` by `height` units, divided into squares. Metafiles count upwards, others downwards.
class Sheet {
public:
    enum Direction { Down = 1, Up = -1 };

    Sheet(int width, int height, Direction direction)
        : m_width(width), m_height(height), m_direction(direction) {}

    int X(int column) const { return m_width * column / columns; }
    int Y(int row) const { return m_direction * (m_height * row / rows); }
    /// The outline of a square included.
    LVXRectangle Square(int column, int row) const {
        return LVXRectangle(RectCorners, X(column), Y(row), X(column + 1), Y(row + 1));
    }
    /// A tenth of a square, to keep text away from its edges.
    int MarginX() const { return m_width / columns / 10; }
    int MarginY() const { return m_direction * (m_height / rows / 10); }

private:
    int m_width;
    int m_height;
    Direction m_direction;
};

/// Draws a month on whatever the port stands over.
class MonthPicture {
public:
    MonthPicture(const myFont& font, year_month month) : m_font(font), m_month(month) {}

    void Draw(LVX::Port& port, const Sheet& sheet) const {
        const OwnedFont font(m_font.make_font());
        LVXPen thin(0, LineSolid, LVX::Black);
        port.useFont(font.get());
        port.usePen(&thin);
        DrawTitle(port, sheet);
        const int first = static_cast<int>(weekday(sys_days(m_month / 1)).iso_encoding()) - 1;
        const int days = static_cast<int>(static_cast<unsigned>((m_month / last).day()));
        for (int day = 1; day <= days; ++day) {
            const int place = first + day - 1;
            DrawDay(port, sheet, place % columns, 1 + place / columns, day);
        }
    }  // the tools go, and the port is left with its own

private:
    void DrawTitle(LVX::Port& port, const Sheet& sheet) const {
        constexpr const char* names[] = {"January",   "February", "March",    "April",
                                         "May",       "June",     "July",     "August",
                                         "September", "October",  "November", "December"};
        const std::string title = names[static_cast<unsigned>(m_month.month()) - 1] + std::string(" ") +
                                  std::to_string(static_cast<int>(m_month.year()));
        port.wrtText(title.c_str(), sheet.MarginX(), sheet.MarginY());
    }

    static void DrawDay(LVX::Port& port, const Sheet& sheet, int column, int row, int day) {
        LVXRectangle square = sheet.Square(column, row);
        LVXBrush brush(column < 5 ? LVX::White : weekend);
        port.useBrush(&brush);
        port.fillRegion(&square, true);
        // A metafile cannot tell how wide a text will be, but every device can align it.
        port.GetDC()->SetTextAlign(TA_RIGHT | TA_TOP);
        port.wrtText(std::to_string(day).c_str(), sheet.X(column + 1) - sheet.MarginX(),
                     sheet.Y(row) + sheet.MarginY());
        port.GetDC()->SetTextAlign(TA_LEFT | TA_TOP);
    }

    const myFont& m_font;
    year_month m_month;
};

/// Draws the month of each page.
class Year : public LVXPrintCallbackInterface {
public:
    Year(LVXPrinter& printer, const myFont& font, year which)
        : m_printer(printer), m_font(font), m_year(which) {}

    void PrintPage(int page) override {
        LVX::Port port(m_printer);
        port.Open();
        int width = 0;
        int height = 0;
        m_printer.sizeOfImage(&width, &height);
        const MonthPicture picture(m_font, m_year / month(static_cast<unsigned>(page)));
        // The last pixels belong to the outline.
        picture.Draw(port, Sheet(width - 1, height - 1, Sheet::Down));
    }

private:
    LVXPrinter& m_printer;
    const myFont& m_font;
    year m_year;
};

bool print(const myFont& font, year which) {
    const std::string title = "Calendar " + std::to_string(static_cast<int>(which));
    LVXPrinter printer(title.c_str(), nullptr);
    Year pages(printer, font, which);
    printer.setCallback(&pages);
    return printer.print(nullptr, false, 12);
}

void copy(const myFont& font, year_month which) {
    // 14 by 10 centimetres.
    LVXMetaFile metafile(1400, 1000);
    {
        LVX::Port port(metafile);
        port.Open();
        MonthPicture(font, which).Draw(port, Sheet(1400, 1000, Sheet::Up));
    }
    // The clipboard deals with windows; this one never shows.
    owl::TWindow window(nullptr, "");
    window.Attr.Style = WS_POPUP;
    window.Create();
    owl::TClipboard(window.GetHandle()).EmptyClipboard();
    metafile.ToClipboard(window);
}

myFont load_or_make(const char* name) {
    myFont font("Times New Roman", 18, true, false, false, false);
    ObjectStoreFile store;
    if (store.OpenStream(name, ObjectStore::ForRead)) {
        font.GetFrom(store);
    } else if (store.OpenStream(name, ObjectStore::ForWrite)) {
        font.PutTo(store);
    } else {
        throw lvx::runtime_error(std::string("cannot write ") + name);
    }
    return font;
}

bool run(int argc, char** argv) {
    const myFont font = load_or_make(argv[1]);
    const year which(std::atoi(argv[2]));
    if (argc == 3) {
        return print(font, which);
    }
    copy(font, which / month(static_cast<unsigned>(std::atoi(argv[3]))));
    return true;
}

bool is_right_call(int argc, char** argv) {
    if (argc != 3 && argc != 4) {
        return false;
    }
    const int monthNumber = argc == 4 ? std::atoi(argv[3]) : 1;
    const int yearNumber = std::atoi(argv[2]);
    return yearNumber >= 1 && yearNumber <= 9999 && monthNumber >= 1 && monthNumber <= 12;
}

}  // namespace

int main(int argc, char** argv) {
    if (!is_right_call(argc, argv)) {
        std::cerr << "usage: calendar FONT YEAR [MONTH]\n";
        return 2;
    }
    try {
        return run(argc, argv) ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "calendar: " << error.what() << '\n';
        return 1;
    }
}
