#pragma once

#include <QLineEdit>
#include <QValidator>

namespace varnello {

/// Keeps a text box to one line of at most so many characters: a pasted text loses its line ends
/// and tabs, a character too many can't be typed, and of what is pasted into the text there is as
/// much as has room.
class OneLineValidator : public QValidator {
public:
    OneLineValidator(QLineEdit* box, std::size_t most);
    State validate(QString& text, int& cursor) const override;

private:
    std::size_t most_;  ///< characters, not units of the toolkit's texts
};

}  // namespace varnello
