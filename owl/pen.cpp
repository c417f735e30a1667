#include "owl/pen.h"

#include "owl/last_error.h"

namespace owl {
namespace {

HPEN MakePen(const LOGPEN& description) {
    return Require<TXGdi>("CreatePenIndirect", [&] { return ::CreatePenIndirect(&description); });
}

LOGPEN Description(const TPen& pen) {
    LOGPEN description;
    Require<TXGdi>("GetObject", [&] { return pen.GetObject(description); });
    return description;
}

}  // namespace

TPen::TPen(TColor color, int width, int style)
    : TPen(LOGPEN{static_cast<UINT>(style), {width, 0}, color.GetValue()}) {}

TPen::TPen(const LOGPEN& description) : TGdiObject(MakePen(description), AutoDelete) {}

TPen::TPen(HPEN handle, TAutoDelete autoDelete) : TGdiObject(handle, autoDelete) {}

TPen::TPen(const TPen& other) : TPen(Description(other)) {}

TPen::~TPen() = default;

bool TPen::GetObject(LOGPEN& description) const {
    description = {};
    return ::GetObject(GetHandle(), sizeof description, &description) != 0;
}

}  // namespace owl
