#pragma once

#include <QProxyStyle>

namespace varnello {

/// The desktop's own style, with no button of any dialog carrying an icon; some of them do by
/// themselves, beside others that don't.
class PlainButtons : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
};

}  // namespace varnello
