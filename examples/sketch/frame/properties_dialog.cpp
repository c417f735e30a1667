#include "sketch/frame/properties_dialog.h"

#include "lvx/propdlg/property_dialog.h"
#include "sketch/frame/property_pages.h"
#include "sketch/frame/sketch_ids.h"

namespace sketch {

bool EditProperties(owl::TWindow* parent, Properties& properties) {
    Properties edited = properties;
    // In front of the dialog, which they outlive.
    ShapePage shape(edited);
    LinePage line(edited);
    FillPage fill(edited);
    FontPage font(edited);
    PicturePage picture(edited);
    TPropertyDialog dialog(parent, IDD_PROPERTIES, Tab::WideMargins | Tab::CreateOnDemandAndKeepIt, nullptr);
    dialog.Add("&Shape", &shape, properties.hasPlace);
    dialog.Add("&Line", &line, properties.hasLook);
    dialog.Add("&Fill", &fill, properties.hasLook);
    dialog.Add("Fo&nt", &font, properties.hasFont);
    dialog.Add("&Picture", &picture, properties.isPicture);
    if (dialog.Execute() != IDOK) {
        return false;
    }
    properties = edited;
    return true;
}

}  // namespace sketch
