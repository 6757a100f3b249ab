#include "desktop/choosers/one_line_validator.h"

#include <algorithm>

#include "desktop/platform/text.h"
#include "engine/common/utf8.h"

namespace varnello {

OneLineValidator::OneLineValidator(QLineEdit* box, std::size_t most)
    : QValidator(box), most_(most) {}

QValidator::State OneLineValidator::validate(QString& text, int& cursor) const {
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        const ushort unit = text.at(i).unicode();
        const bool breaks = unit < 0x20 || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
        if (!breaks) continue;
        text.remove(i, 1);
        if (i < cursor) --cursor;
    }
    // What was entered ends at the cursor.
    const QString after = text.mid(cursor);
    const std::size_t kept = std::min(CharacterCount(after.toStdString()), most_);
    const std::string entered = text.left(cursor).toStdString();
    if (CharacterCount(entered) + kept <= most_) return Acceptable;
    text = ToQt(FirstCharacters(entered, most_ - kept));
    cursor = static_cast<int>(text.size());
    text += after;
    return Acceptable;
}

}  // namespace varnello
