#pragma once

#include <QStringList>
#include <span>
#include <vector>

namespace varnello {

/// The places of `values`, from 0, in ascending or descending order; equal ones stay in the order
/// in which they stand. Takes time in proportion to their number. No value is NaN.
std::vector<int> OrderOf(std::span<const double> values, bool descending);

/// The place of each text in the alphabet of the user's language; equal ones share it.
std::vector<double> AlphabetOf(const QStringList& texts);

}  // namespace varnello
