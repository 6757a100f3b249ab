#pragma once

#include <functional>

#include "desktop/choosers/one_line_validator.h"
#include "engine/settings/data.h"

namespace varnello {

/// Takes a number, and a row as it is copied from a report: of that its number stays.
class DealValidator : public OneLineValidator {
public:
    /// `onGame` is told the game of such a row, if there is one in it.
    DealValidator(QLineEdit* box, std::size_t most, const cData& data,
                  std::function<void(const QString& game)> onGame);

    State validate(QString& text, int& cursor) const override;

private:
    const cData& data_;
    std::function<void(const QString& game)> onGame_;
};

}  // namespace varnello
