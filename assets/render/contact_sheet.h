// One picture of everything, for people to look at.
#pragma once

#include "artwork.h"

#include <QImage>

namespace varnello::render {

QImage ContactSheet(Artwork& artwork);

}  // namespace varnello::render
