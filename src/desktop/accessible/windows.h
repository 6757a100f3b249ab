#pragma once

namespace varnello {

/// From now on assistive programs read the program's own windows as what they are. Once a process.
void DescribeWindows();

}  // namespace varnello
