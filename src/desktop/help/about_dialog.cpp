#include "desktop/help/about_dialog.h"

#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/platform/text.h"
#include "engine/settings/data.h"

namespace varnello {
namespace {

constexpr QSize kSize(463, 299);
constexpr int kEmblem = 96;

QLabel* Line(const QString& text, double scale, bool bold) {
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(bold);
    label->setFont(font);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

}  // namespace

AboutDialog::AboutDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
    setWindowTitle(QStringLiteral("About ") + ToQt(kProductName));
    setFixedSize(kSize);
    QPalette white = palette();
    white.setColor(QPalette::Window, Qt::white);
    white.setColor(QPalette::WindowText, QColor(0x20, 0x22, 0x28));
    setPalette(white);

    auto* emblem = new QLabel;
    emblem->setPixmap(QIcon(QStringLiteral(":/splash/about.png"))
                          .pixmap(QSize(kEmblem, kEmblem), devicePixelRatioF()));
    emblem->setAlignment(Qt::AlignCenter);
    auto* ok = new QPushButton(QStringLiteral("OK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* all = new QVBoxLayout(this);
    all->addStretch();
    all->addWidget(emblem);
    all->addWidget(Line(ToQt(kProductName), 2.0, true));
    all->addWidget(Line(QStringLiteral("Version ") + ToQt(kVersion), 1.0, false));
    all->addSpacing(6);
    all->addWidget(Line(QStringLiteral("Thirty-five games of patience for a quiet hour. Take your "
                                       "time; the cards will wait."),
                        1.0, false));
    all->addWidget(Line(QStringLiteral("Free software under the GNU General Public License, "
                                       "version 3 or later."),
                        0.9, false));
    all->addStretch();
    all->addWidget(ok, 0, Qt::AlignCenter);
}

}  // namespace varnello
