// SPDX-License-Identifier: MIT
// Flight and drawings of the butterfly.
#include "tools/butterfly.h"

#include "host/sheet_host.h"

namespace velmor::butterfly {

void fly(host::Window& window, const Images& images, Wings& wings)
{
    wings.open = !wings.open;
    window.borrowDrawing(images.main, wings.open ? images.openWings : images.closeWings);
    host::Place place = window.placeOf(images.main);
    place.left += stepRight;
    place.top -= stepUp;
    if (place.left > window.spec().place.width || place.top + place.height < 0)
        place = window.row(images.main).place;
    window.setPlaceOf(images.main, place);
}

} // namespace velmor::butterfly
