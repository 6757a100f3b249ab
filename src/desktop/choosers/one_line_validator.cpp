#include "desktop/choosers/one_line_validator.h"

#include <algorithm>

#include "desktop/platform/text.h"
#include "engine/common/utf8.h"

namespace varnello {

OneLineValidator::OneLineValidator(QLineEdit* box, std::size_t most)
    : QValidator(box), box_(*box), most_(most) {}

QValidator::State OneLineValidator::validate(QString& text, int& cursor) const {
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        const ushort unit = text.at(i).unicode();
        const bool breaks = unit < 0x20 || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
        if (!breaks) continue;
        text.remove(i, 1);
        if (i < cursor) --cursor;
    }
    const std::string typed = text.toStdString();
    if (CharacterCount(typed) <= most_) return Acceptable;
    if (CharacterCount(box_.text().toStdString()) >= most_) return Invalid;
    text = ToQt(FirstCharacters(typed, most_));
    cursor = std::min(cursor, static_cast<int>(text.size()));
    return Acceptable;
}

}  // namespace varnello
