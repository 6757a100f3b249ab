#pragma once

#include "engine/desktop.h"

namespace varnello {

/// Dates as the user's locale writes them.
class LocaleDates : public DateForms {
public:
    std::string Date(const DateTime& moment) const override;
    std::string DateAndTime(const DateTime& moment) const override;
    std::string DayOfYear(const DateTime& moment) const override;
    std::string MonthOfYear(const DateTime& moment) const override;
    std::string Year(const DateTime& moment) const override;
};

}  // namespace varnello
