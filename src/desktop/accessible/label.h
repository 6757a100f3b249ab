#pragma once

#include <QWidget>

namespace varnello {

/// Says what a list or a box to choose from is for, where no label beside it shows that. The
/// toolkit gives the name of such a box away to what is chosen in it, so the purpose is a label
/// that isn't seen.
void NamePurpose(QWidget& box, const QString& purpose);

}  // namespace varnello
