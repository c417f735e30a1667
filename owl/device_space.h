// owl/device_space.h
//
// The way from logical units to those of the device, told in full precision, and drawing in the device's own
// units. Private to the framework; Windows only. Does not: know contexts that are laid out from right to
// left.
#pragma once

#include <windows.h>

#include <vector>

#include "owl/geometry.h"
#include "owl/turned_picture.h"

namespace owl {

/// The world transform; the identity where there is none.
XFORM WorldOf(HDC dc);

/// Whether it turns or shears.
bool IsTurned(const XFORM& world);
/// Whether it mirrors. Half a turn does, in both directions.
bool IsMirrored(const XFORM& world);

/// From the logical units of `dc` to its device's: through the world, then through the page.
TPictureTransform LogicalToDevice(HDC dc);

/// All places that the device can have.
constexpr TRect everywhere(-(1 << 29), -(1 << 29), 1 << 29, 1 << 29);

/// Whether `dc` records an enhanced metafile, which is seen only when it is played.
bool IsRecorded(HDC dc);

/// What of the device can be seen, in the current units of `dc`. Of what is recorded, everywhere.
TRect VisiblePart(HDC dc);

/// The pixels of all the rectangles, which need not be in order. Null if the system can not make it.
HRGN MakeRegion(const std::vector<TRect>& rects);

/// Makes the device's units the logical ones, and lets go at its end of all that was selected and clipped
/// meanwhile. The clip region stays.
class DeviceUnits {
public:
    explicit DeviceUnits(HDC dc);
    ~DeviceUnits();
    DeviceUnits(const DeviceUnits&) = delete;
    DeviceUnits& operator=(const DeviceUnits&) = delete;

    /// False if nothing must be drawn, since the state could not be noted.
    bool IsGood() const { return m_saved != 0; }

private:
    HDC m_dc;
    int m_saved;
};

}  // namespace owl
