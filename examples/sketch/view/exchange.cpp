#include "sketch/view/exchange.h"

#include <new>

#include "lvx/exchange/clipboard.h"
#include "lvx/images/dibitmap.h"
#include "sketch/model/drawing.h"
#include "sketch/model/error.h"
#include "sketch/model/figure_image.h"
#include "sketch/model/line_ends.h"
#include "sketch/model/picture.h"
#include "sketch/model/reading.h"
#include "sketch/model/text.h"

namespace sketch {
namespace {

// The library puts texts and objects. A picture is a block that the system takes over.
void PutImage(HWND window, HGLOBAL image) {
    bool isTaken = false;
    if (::OpenClipboard(window) != FALSE) {
        isTaken = ::SetClipboardData(CF_DIB, image) != nullptr;
        ::CloseClipboard();
    }
    if (!isTaken) {
        ::GlobalFree(image);
    }
}

void PutImageOf(HWND window, const Figure& figure) {
    try {
        PutImage(window, MakeImage(figure));
    } catch (const DocumentError&) {  // too large for a picture
    } catch (const std::bad_alloc&) {
    }
}

std::shared_ptr<Figure> PasteOwn(LVXClipboard& clipboard) {
    const Reading reading;
    Storable* object = nullptr;
    try {
        if (!clipboard.get(object, true)) {
            return nullptr;
        }
    } catch (const DocumentError&) {
        throw;
    } catch (const std::runtime_error& error) {  // of the store or the factory
        throw DocumentError(error.what());
    }
    const Figures figures = Reading::Take<Drawing>(object)->Contents();
    // A stream that ends too early may read as a drawing of nothing.
    if (figures.empty()) {
        throw DocumentError("There is nothing in it.");
    }
    return figures.front()->Clone();
}

std::shared_ptr<Figure> PastePicture(LVXClipboard& clipboard, const owl::TPoint& place) {
    lvx::auto_ptr<LVXUtilities::DIBitmap> bitmap;
    if (!clipboard.get(bitmap)) {
        return nullptr;
    }
    return std::make_shared<Picture>(Bitmap(bitmap.release()), "", place);
}

std::shared_ptr<Figure> PasteText(LVXClipboard& clipboard, const myFont& font, const Look& look,
                                  const owl::TPoint& place) {
    std::string words;
    if (!clipboard.get(words, CF_TEXT) || words.empty()) {
        return nullptr;
    }
    return std::make_shared<Text>(words.substr(0, Text::most_letters), font, look, place);
}

// What any program may have put there.
bool HasCommonForms() {
    return ::IsClipboardFormatAvailable(CF_DIB) != FALSE || ::IsClipboardFormatAvailable(CF_TEXT) != FALSE;
}

// Other hosts of the library put their objects in the same format. One that is not this program's is nothing
// to tell of if there is a picture or a text beside it.
std::shared_ptr<Figure> PasteOwnIfAny(LVXClipboard& clipboard) {
    try {
        return PasteOwn(clipboard);
    } catch (const DocumentError&) {
        if (!HasCommonForms()) {
            throw;
        }
    }
    return nullptr;
}

}  // namespace

bool CopyFigure(HWND window, const Figure& figure) {
    LVXClipboard clipboard(window);
    Drawing drawing({figure.Clone()});
    if (!clipboard.clear() || !clipboard.put(&drawing)) {
        return false;
    }
    PutImageOf(window, figure);
    if (const auto* const text = dynamic_cast<const Text*>(&figure)) {
        clipboard.put(WithSystemLineEnds(text->Words()), CF_TEXT);
    }
    return true;
}

bool CanPaste() {
    return ::IsClipboardFormatAvailable(LVXClipboard::storableFormat()) != FALSE || HasCommonForms();
}

std::shared_ptr<Figure> PasteFigure(HWND window, const myFont& font, const Look& look,
                                    const owl::TPoint& place) {
    LVXClipboard clipboard(window);
    std::shared_ptr<Figure> figure = PasteOwnIfAny(clipboard);
    if (figure == nullptr) {
        figure = PastePicture(clipboard, place);
    }
    return figure != nullptr ? figure : PasteText(clipboard, font, look, place);
}

}  // namespace sketch
