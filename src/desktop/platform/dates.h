#pragma once

#include "engine/desktop.h"

namespace varnello {

/// Dates as the user's locale writes them.
class LocaleDates : public DateForms {
public:
    std::string Date(const DateTime& moment) const override;
    std::string DateAndTime(const DateTime& moment) const override;
    std::string Month(int month) const override;
};

}  // namespace varnello
