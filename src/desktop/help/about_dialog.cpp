#include "desktop/help/about_dialog.h"

#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/platform/text.h"
#include "engine/settings/data.h"

namespace varnello {
namespace {

constexpr int kLeastWidth = 463;
constexpr int kSides = 24;
constexpr QSize kTitleSize(329, 150);
constexpr QColor kInk(0x16, 0x18, 0x1D);
constexpr QColor kQuietInk(0x5A, 0x5A, 0x5A);

QLabel* Line(const QString& text, double scale, const QColor& ink) {
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, ink);
    label->setPalette(palette);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

}  // namespace

AboutDialog::AboutDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
    setWindowTitle(tr("About %1").arg(ToQt(kProductName)));
    QPalette white = palette();
    white.setColor(QPalette::Window, Qt::white);
    setPalette(white);

    // The name is drawn; who can't see it is told.
    auto* lblName = new QLabel;
    lblName->setPixmap(
        QIcon(QStringLiteral(":/splash/title.png")).pixmap(kTitleSize, devicePixelRatioF()));
    lblName->setAlignment(Qt::AlignCenter);
    lblName->setMinimumWidth(kLeastWidth - kSides * 2);
    lblName->setAccessibleName(ToQt(kProductName));
    auto* ok = new QPushButton(tr("OK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(kSides, 20, kSides, 16);
    all->addWidget(lblName);
    all->addSpacing(10);
    all->addWidget(Line(tr("Patience for a quiet hour. The cards will wait."), 1.15, kInk));
    all->addSpacing(4);
    all->addWidget(Line(tr("Version %1").arg(ToQt(kVersion)), 1, kQuietInk));
    all->addWidget(Line(tr("Free software under the GNU General Public License,\n"
                           "version 3 or later"),
                        0.9, kQuietInk));
    all->addStretch();
    all->addSpacing(10);
    all->addWidget(ok, 0, Qt::AlignCenter);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace varnello
