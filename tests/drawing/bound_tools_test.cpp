// Tools and ports in random sequences of whatever a host may do with them, beside a model of a few lines:
// which tool each port uses, what value each tool has, and which ports are open.
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <memory>
#include <random>
#include <string>

#include "drawing/sheet.h"
#include "owl/brush.h"
#include "owl/pen.h"

using lvx_test::Sheet;
using owl::TColor;

namespace {

std::string hex(COLORREF colour) {
    char text[16];
    std::snprintf(text, sizeof text, "%06lx", static_cast<unsigned long>(colour));
    return text;
}

// For each kind of tool: how it is made of a value, changed and used, and what a context has to show for it.
// The value 0 stands for a port's own tool.

struct Pens {
    using Tool = LVXPen;
    static constexpr int steps = 20000;

    static TColor Colour(int value) { return TColor(value, 0, 0); }
    static std::unique_ptr<Tool> Make(int value) { return std::make_unique<Tool>(Colour(value)); }
    static void Set(Tool& tool, int value) { tool.colour(Colour(value)); }
    static void Use(LVX::Port& port, Tool* tool) { port.usePen(tool); }
    static void Reset(LVX::Port& port) { port.resetPen(); }
    static Tool* Current(const LVX::Port& port) { return port.currentPen(); }
    static HGDIOBJ Original() { return ::GetStockObject(BLACK_PEN); }
    static HGDIOBJ Selected(const Sheet& sheet) { return sheet.Selected(OBJ_PEN); }

    static std::string Seen(const Sheet& sheet) {
        LOGPEN pen{};
        ::GetObjectA(Selected(sheet), sizeof pen, &pen);
        return hex(pen.lopnColor) + " writes " + hex(sheet.surface.dc.GetTextColor());
    }
    static std::string Expected(int value) { return hex(Colour(value)) + " writes " + hex(Colour(value)); }
};

struct Brushes {
    using Tool = LVXBrush;
    static constexpr int steps = 20000;

    static TColor Colour(int value) { return TColor(0, value, 0); }
    static std::unique_ptr<Tool> Make(int value) {
        return std::make_unique<Tool>(FillBackground, TColor::LtRed, Colour(value));
    }
    static void Set(Tool& tool, int value) { tool.background(Colour(value)); }
    static void Use(LVX::Port& port, Tool* tool) { port.useBrush(tool); }
    static void Reset(LVX::Port& port) { port.resetBrush(); }
    static Tool* Current(const LVX::Port& port) { return port.currentBrush(); }
    static HGDIOBJ Original() { return ::GetStockObject(WHITE_BRUSH); }
    static HGDIOBJ Selected(const Sheet& sheet) { return sheet.Selected(OBJ_BRUSH); }

    static std::string Seen(const Sheet& sheet) {
        LOGBRUSH brush{};
        ::GetObjectA(Selected(sheet), sizeof brush, &brush);
        return hex(brush.lbColor) + " on " + hex(sheet.surface.dc.GetBkColor());
    }
    static std::string Expected(int value) {
        return value == 0 ? "000000 on ffffff" : hex(Colour(value)) + " on " + hex(Colour(value));
    }
};

struct Fonts {
    using Tool = LVXFont;
    static constexpr int steps = 5000;

    static int Points(int value) { return 9 + value % 20; }
    static std::unique_ptr<Tool> Make(int value) {
        return std::make_unique<Tool>("Arial", Points(value), false, false, false, false);
    }
    static void Set(Tool& tool, int value) { tool.pointSize(Points(value)); }
    static void Use(LVX::Port& port, Tool* tool) { port.useFont(tool); }
    static void Reset(LVX::Port& port) { port.resetFont(); }
    static Tool* Current(const LVX::Port& port) { return port.currentFont(); }
    static HGDIOBJ Original() { return ::GetStockObject(SYSTEM_FONT); }
    static HGDIOBJ Selected(const Sheet& sheet) { return sheet.Selected(OBJ_FONT); }

    static std::string Seen(const Sheet& sheet) {
        TEXTMETRICA metrics{};
        char face[64] = "";
        ::GetTextMetricsA(sheet.surface.dc, &metrics);
        ::GetTextFaceA(sheet.surface.dc, sizeof face, face);
        return face + (", " + std::to_string(metrics.tmHeight));
    }
    /// What the system alone has for it, on a sheet of its own.
    static std::string Expected(int value) {
        static std::map<int, std::string> known;
        std::string& expected = known[value == 0 ? 0 : Points(value)];
        if (expected.empty()) {
            expected = OnItsOwn(value);
        }
        return expected;
    }

private:
    static std::string OnItsOwn(int value) {
        const Sheet sheet;
        if (value == 0) {
            return Seen(sheet);
        }
        LOGFONTA description{};
        description.lfHeight = -(96 * Points(value) * 20 / 1440);
        description.lfWeight = FW_NORMAL;
        description.lfCharSet = DEFAULT_CHARSET;
        ::lstrcpyA(description.lfFaceName, "Arial");
        const HFONT font = ::CreateFontIndirectA(&description);
        const HGDIOBJ before = ::SelectObject(sheet.surface.dc, font);
        const std::string seen = Seen(sheet);
        ::SelectObject(sheet.surface.dc, before);
        ::DeleteObject(font);
        return seen;
    }
};

template <class Kind>
class World {
public:
    World() {
        for (int port = 0; port < port_count; ++port) {
            BeginPort(port);
        }
    }
    ~World() {
        for (int port = 0; port < port_count; ++port) {
            EndPort(port);
        }
    }

    void Step() {
        const int tool = Random(tool_count);
        const int other = Random(tool_count);
        const int port = Random(port_count);
        switch (Random(12)) {
            case 0:
                return EndTool(tool);
            case 1:
                return CopyTool(tool, other);
            case 2:
                return Assign(tool, other);
            case 3:
            case 4:
                return Change(tool, 1 + Random(200));
            case 5:
                return MakeAgain(tool);
            case 6:
            case 7:
                return Use(port, tool);
            case 8:
                return Use(port, Random(2) == 0 ? Own(port) : Own(Random(port_count)));
            case 9:
                return OpenOrClose(port);
            case 10:
                EndPort(port);
                return BeginPort(port);
            default:
                return ResetAndUse(port);
        }
    }

    void Check() const {
        for (int port = 0; port < port_count; ++port) {
            const Place& place = m_ports[Index(port)];
            ASSERT_EQ(Pointer(place.uses), Kind::Current(*place.port));
            ASSERT_EQ(place.isOpen ? 1 : 0, place.sheet->Users());
            if (place.isOpen) {
                ASSERT_EQ(Kind::Expected(Value(place.uses)), Kind::Seen(*place.sheet));
            } else {
                ASSERT_EQ(Kind::Original(), Kind::Selected(*place.sheet));
            }
        }
    }

private:
    using Tool = typename Kind::Tool;

    static constexpr int tool_count = 4;
    static constexpr int port_count = 3;

    struct Place {
        std::unique_ptr<Sheet> sheet;
        std::unique_ptr<LVX::Port> port;
        // What the model knows.
        bool isOpen = false;
        int uses = 0;
        Tool* own = nullptr;
    };
    struct Made {
        std::unique_ptr<Tool> tool;
        // What the model knows.
        int value = 0;
    };

    static std::size_t Index(int number) { return static_cast<std::size_t>(number); }
    int Random(int count) { return static_cast<int>(m_random() % static_cast<unsigned int>(count)); }

    /// The number of the tool that belongs to a port itself.
    static int Own(int port) { return tool_count + port; }
    Tool* Pointer(int tool) const {
        return tool < tool_count ? m_tools[Index(tool)].tool.get() : m_ports[Index(tool - tool_count)].own;
    }
    int Value(int tool) const { return tool < tool_count ? m_tools[Index(tool)].value : 0; }

    void FallBack(int tool) {
        for (int port = 0; port < port_count; ++port) {
            if (m_ports[Index(port)].uses == tool) {
                m_ports[Index(port)].uses = Own(port);
            }
        }
    }

    void BeginPort(int port) {
        Place& place = m_ports[Index(port)];
        place.sheet = std::make_unique<Sheet>(1, 1);
        place.port = std::make_unique<LVX::Port>(*place.sheet);
        place.own = Kind::Current(*place.port);
        place.uses = Own(port);
        place.isOpen = false;
    }

    void EndPort(int port) {
        Place& place = m_ports[Index(port)];
        // What a host has to do.
        Kind::Use(*place.port, nullptr);
        place.port.reset();
        FallBack(Own(port));
    }

    void EndTool(int tool) {
        m_tools[Index(tool)].tool.reset();
        FallBack(tool);
    }

    void CopyTool(int tool, int other) {
        if (tool == other) {
            return;
        }
        EndTool(tool);
        const Made& model = m_tools[Index(other)];
        Made& made = m_tools[Index(tool)];
        made.value = model.tool != nullptr ? model.value : 1 + Random(200);
        made.tool = model.tool != nullptr ? std::make_unique<Tool>(*model.tool) : Kind::Make(made.value);
    }

    void Assign(int tool, int other) {
        if (Pointer(tool) != nullptr && Pointer(other) != nullptr) {
            *Pointer(tool) = *Pointer(other);
            m_tools[Index(tool)].value = m_tools[Index(other)].value;
        }
    }

    void Change(int tool, int value) {
        if (Pointer(tool) != nullptr) {
            Kind::Set(*Pointer(tool), value);
            m_tools[Index(tool)].value = value;
        }
    }

    void MakeAgain(int tool) {
        if (Pointer(tool) != nullptr) {
            Pointer(tool)->make();
        }
    }

    void Use(int port, int tool) {
        if (Pointer(tool) != nullptr) {
            Kind::Use(*m_ports[Index(port)].port, tool == Own(port) ? nullptr : Pointer(tool));
            m_ports[Index(port)].uses = tool;
        }
    }

    void OpenOrClose(int port) {
        Place& place = m_ports[Index(port)];
        if (place.isOpen) {
            place.port->Close();
        } else {
            place.port->Open();
        }
        place.isOpen = !place.isOpen;
    }

    void ResetAndUse(int port) {
        const Place& place = m_ports[Index(port)];
        Kind::Reset(*place.port);
        ASSERT_EQ(Kind::Original(), Kind::Selected(*place.sheet));
        Kind::Use(*place.port, Kind::Current(*place.port));
    }

    std::mt19937 m_random{1};
    std::array<Made, tool_count> m_tools;
    std::array<Place, port_count> m_ports;
};

template <class Kind>
class BoundTools : public ::testing::Test {};

using Kinds = ::testing::Types<Pens, Brushes, Fonts>;
TYPED_TEST_SUITE(BoundTools, Kinds);

}  // namespace

TYPED_TEST(BoundTools, are_selected_where_they_are_used_whatever_happened_before) {
    World<TypeParam> world;
    for (int step = 0; step < TypeParam::steps; ++step) {
        world.Step();
        world.Check();
        if (::testing::Test::HasFatalFailure()) {
            FAIL() << "at step " << step;
        }
    }
}

TYPED_TEST(BoundTools, leave_nothing_behind) {
    const int before = owl_test::RoomForGdiObjects();
    {
        World<TypeParam> world;
        for (int step = 0; step < TypeParam::steps; ++step) {
            world.Step();
        }
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}
