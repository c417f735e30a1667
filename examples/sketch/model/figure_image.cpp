#include "sketch/model/figure_image.h"

#include "lvx/drawing/port.h"
#include "owl/dc.h"
#include "sketch/model/look.h"
#include "sketch/model/plain_sheet.h"

namespace sketch {
namespace {

// Lines are drawn around the edge of a shape, by half their width.
int MarginOf(const Figure& figure) {
    const Look* const look = figure.LookOf();
    return look == nullptr ? 0 : look->lineWidth / 2 + 1;
}

}  // namespace

HGLOBAL MakeImage(const Figure& figure) {
    const owl::TRect area = figure.Bounds().InflatedBy(MarginOf(figure), MarginOf(figure));
    PlainSheet sheet(area.Size());
    {
        LVX::Port port(sheet);
        port.Open();
        port.GetDC()->SetWindowOrg(area.TopLeft());
        figure.Draw(port);
    }
    return sheet.MakeBlock();
}

}  // namespace sketch
