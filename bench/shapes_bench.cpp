#include "bench/shapes_bench.h"

#include <windows.h>

#include <cstddef>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>

#include "lvx/drawing/port.h"
#include "lvx/drawing/region.h"
#include "owl/dc.h"

namespace lvx_bench {
namespace {

constexpr int width = 800;
constexpr int height = 600;
constexpr int shape_count = 1000;
// So many times in each run that the steps of the system's clocks do not count.
constexpr int repetitions = 100;

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 255, 0);

constexpr int corners = 5;

enum class Kind { rectangle, ellipse, polygon };

/// Where a shape lies; its polygon is the diamond in that place.
struct Outline {
    Kind kind;
    RECT edges;
};

std::vector<Outline> make_outlines() {
    std::vector<Outline> outlines;
    std::mt19937 random(1);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned int>(limit));
    };
    for (int i = 0; i < shape_count; ++i) {
        const int left = below(width - 64);
        const int top = below(height - 64);
        outlines.push_back(
            {static_cast<Kind>(i % 3), {left, top, left + 8 + below(56), top + 8 + below(56)}});
    }
    return outlines;
}

std::vector<POINT> diamond(const RECT& edges) {
    const LONG x = (edges.left + edges.right) / 2;
    const LONG y = (edges.top + edges.bottom) / 2;
    return {{x, edges.top}, {edges.right, y}, {x, edges.bottom}, {edges.left, y}, {x, edges.top}};
}

/// A picture in memory with a context of its own.
class Canvas {
public:
    Canvas() : m_dc(::CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_bitmap =
            ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&m_pixels), nullptr, 0);
        if (m_bitmap == nullptr) {
            throw std::runtime_error("cannot make a picture in memory");
        }
        m_original = ::SelectObject(m_dc, m_bitmap);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas() {
        ::SelectObject(m_dc, m_original);
        ::DeleteObject(m_bitmap);
        ::DeleteDC(m_dc);
    }

    HDC Dc() const { return m_dc; }
    void Clear() { ::PatBlt(m_dc, 0, 0, width, height, WHITENESS); }

    std::uint64_t Fingerprint() const {
        ::GdiFlush();
        std::uint64_t sum = 0;
        for (std::size_t i = 0; i < std::size_t{width} * height; ++i) {
            sum = (sum ^ m_pixels[i]) * 0x9E3779B97F4A7C15u;
        }
        return sum;
    }

private:
    HDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_original = nullptr;
    std::uint32_t* m_pixels = nullptr;
};

class CanvasDevice : public LVX::Device {
public:
    owl::TDC* AcquireDC() override { return &m_context; }
    void ReleaseDC() override {}

    Canvas canvas;

private:
    owl::TDC m_context{canvas.Dc()};
};

/// Shapes of the library, filled and framed by its port.
class PortDrawing {
public:
    explicit PortDrawing(const std::vector<Outline>& outlines) {
        for (const Outline& outline : outlines) {
            m_shapes.push_back(MakeShape(outline));
        }
        m_port.usePen(&m_pen);
        m_port.useBrush(&m_brush);
        m_port.Open();
    }
    PortDrawing(const PortDrawing&) = delete;
    PortDrawing& operator=(const PortDrawing&) = delete;
    ~PortDrawing() {
        m_port.usePen(nullptr);
        m_port.useBrush(nullptr);
    }

    void Draw() {
        for (const auto& shape : m_shapes) {
            m_port.fillRegion(shape.get(), false);
            m_port.frameRegion(shape.get());
        }
    }
    Canvas& Picture() { return m_device.canvas; }

private:
    std::unique_ptr<LVXRegion> MakeShape(const Outline& outline) {
        const auto [left, top, right, bottom] = outline.edges;
        if (outline.kind == Kind::rectangle) {
            return std::make_unique<LVXRectangle>(RectCorners, left, top, right, bottom);
        }
        if (outline.kind == Kind::ellipse) {
            return std::make_unique<LVXEllipse>(RectCorners, left, top, right, bottom);
        }
        m_points.push_back(std::make_unique<LVXPointArray>(corners));
        for (const POINT& point : diamond(outline.edges)) {
            m_points.back()->add(static_cast<int>(point.x), static_cast<int>(point.y));
        }
        return std::make_unique<LVXPolygon>(m_points.back().get());
    }

    CanvasDevice m_device;
    LVXPen m_pen{red};
    LVXBrush m_brush{green};
    std::vector<std::unique_ptr<LVXPointArray>> m_points;
    std::vector<std::unique_ptr<LVXRegion>> m_shapes;
    LVX::Port m_port{m_device};
};

/// What a port promises: behind each operation its tools are selected, whatever was drawn.
struct EachTime {
    static constexpr bool selects_again = true;
};
/// As few calls as will do: what has pushed a tool out selects it again.
struct Once {
    static constexpr bool selects_again = false;
};

/// The system's calls alone.
template <class Selecting>
class BareDrawing {
public:
    explicit BareDrawing(const std::vector<Outline>& outlines) : m_outlines(outlines) {
        for (const Outline& outline : m_outlines) {
            m_diamonds.push_back(diamond(outline.edges));
        }
        m_originalPen = ::SelectObject(m_canvas.Dc(), m_pen);
        m_originalBrush = ::SelectObject(m_canvas.Dc(), m_brush);
    }
    BareDrawing(const BareDrawing&) = delete;
    BareDrawing& operator=(const BareDrawing&) = delete;
    ~BareDrawing() {
        ::SelectObject(m_canvas.Dc(), m_originalPen);
        ::SelectObject(m_canvas.Dc(), m_originalBrush);
        ::DeleteObject(m_pen);
        ::DeleteObject(m_brush);
    }

    void Draw() {
        for (std::size_t i = 0; i < m_outlines.size(); ++i) {
            Fill(i);
            SelectAgain();
            Frame(i);
            SelectAgain();
        }
    }
    Canvas& Picture() { return m_canvas; }

private:
    void Fill(std::size_t shape) {
        const RECT& edges = m_outlines[shape].edges;
        switch (m_outlines[shape].kind) {
            case Kind::rectangle:
                ::FillRect(m_canvas.Dc(), &edges, m_brush);
                break;
            case Kind::ellipse:
                Paint(::CreateEllipticRgnIndirect(&edges));
                break;
            case Kind::polygon:
                Paint(::CreatePolygonRgn(m_diamonds[shape].data(), corners, ALTERNATE));
                break;
        }
    }

    void Frame(std::size_t shape) {
        const RECT& edges = m_outlines[shape].edges;
        const HDC dc = m_canvas.Dc();
        switch (m_outlines[shape].kind) {
            case Kind::rectangle:
                ::SelectObject(dc, ::GetStockObject(HOLLOW_BRUSH));
                ::Rectangle(dc, edges.left, edges.top, edges.right, edges.bottom);
                SelectBrush();
                break;
            case Kind::ellipse:
                ::SelectObject(dc, ::GetStockObject(HOLLOW_BRUSH));
                ::Ellipse(dc, edges.left, edges.top, edges.right, edges.bottom);
                SelectBrush();
                break;
            case Kind::polygon:
                ::Polyline(dc, m_diamonds[shape].data(), corners);
                break;
        }
    }

    void Paint(HRGN region) {
        ::PaintRgn(m_canvas.Dc(), region);
        ::DeleteObject(region);
    }

    void SelectBrush() {
        if (!Selecting::selects_again) {
            ::SelectObject(m_canvas.Dc(), m_brush);
        }
    }

    void SelectAgain() {
        if (Selecting::selects_again) {
            ::SelectObject(m_canvas.Dc(), m_pen);
            ::SetTextColor(m_canvas.Dc(), red);
            ::SelectObject(m_canvas.Dc(), m_brush);
            ::SetBkColor(m_canvas.Dc(), RGB(255, 255, 255));
        }
    }

    Canvas m_canvas;
    std::vector<Outline> m_outlines;
    std::vector<std::vector<POINT>> m_diamonds;
    HPEN m_pen = ::CreatePen(PS_SOLID, 1, red);
    HBRUSH m_brush = ::CreateSolidBrush(green);
    HGDIOBJ m_originalPen = nullptr;
    HGDIOBJ m_originalBrush = nullptr;
};

template <class Drawing>
Contender contender(const char* name) {
    const auto drawing = std::make_shared<Drawing>(make_outlines());
    const auto run = [drawing] {
        for (int i = 0; i < repetitions; ++i) {
            drawing->Draw();
        }
    };
    return {name, [drawing] { drawing->Picture().Clear(); }, run,
            [drawing] { return drawing->Picture().Fingerprint(); }, nullptr};
}

Benchmark make_fill_frame() {
    return {"shapes/fill-frame",
            "shape",
            double{shape_count} * repetitions,
            {contender<PortDrawing>("lvx"), contender<BareDrawing<EachTime>>("gdi"),
             contender<BareDrawing<Once>>("gdi-once")}};
}

}  // namespace

std::vector<Entry> shapes_benchmarks() {
    return {{"shapes/fill-frame", make_fill_frame}};
}

}  // namespace lvx_bench
