#include "lvx/drawing/device.h"

namespace LVX {

Device::~Device() = default;

}  // namespace LVX
