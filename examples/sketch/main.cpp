// A small drawing application, the host that shows how the parts of the library work together: shapes and
// pictures on a sheet, turned and skewed, kept in compound documents. docs/sketch.md is its manual and the
// map of its files. Windows only.
//
// usage: sketch [DOCUMENT]
#include <windows.h>

#include "owl/application.h"
#include "sketch/frame/frame.h"

namespace {

class SketchApplication : public owl::TApplication {
public:
    explicit SketchApplication(const char* document) : TApplication("Sketch"), m_document(document) {}

    void InitMainWindow() override {
        m_frame = new sketch::Frame;
        SetMainWindow(m_frame);
    }
    // When the window stands: a box that tells why a document does not open lies above it.
    void InitInstance() override {
        TApplication::InitInstance();
        if (m_document != nullptr) {
            m_frame->Open(m_document);
        }
    }

private:
    const char* m_document;
    sketch::Frame* m_frame = nullptr;
};

}  // namespace

int main(int argc, char** argv) {
    return SketchApplication(argc > 1 ? argv[1] : nullptr).Run();
}
