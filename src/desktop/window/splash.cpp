#include "desktop/window/splash.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QScreen>

#include "desktop/platform/text.h"
#include "engine/settings/data.h"

namespace varnello {
namespace {

constexpr QSize kSplashSize(369, 237);
constexpr QSize kTitleSize(329, 150);
constexpr int kTitleTop = 28;
constexpr int kVersionBottom = 20;
constexpr int kShownFor = 2000;  // milliseconds

}  // namespace

Splash::Splash() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setWindowTitle(ToQt(kProductName));
    setFixedSize(kSplashSize);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
    connect(&Timer1_, &QTimer::timeout, this, &Splash::End);
    Timer1_.setSingleShot(true);
    Timer1_.start(kShownFor);
}

void Splash::End() {
    if (std::exchange(ended_, true)) return;
    Timer1_.stop();
    Q_EMIT Ended();
}

void Splash::showEvent(QShowEvent*) {
    activateWindow();  // nobody gives a splash the focus unasked
}

void Splash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const QIcon title(QStringLiteral(":/splash/title.png"));
    title.paint(&painter, QRect(QPoint((width() - kTitleSize.width()) / 2, kTitleTop), kTitleSize));
    painter.setPen(QColor(0x5A, 0x5A, 0x5A));
    painter.drawText(rect().adjusted(0, 0, 0, -kVersionBottom), Qt::AlignHCenter | Qt::AlignBottom,
                     tr("Version : %1").arg(ToQt(kVersion)));
}

void Splash::mousePressEvent(QMouseEvent*) { End(); }

void Splash::keyPressEvent(QKeyEvent*) { End(); }

}  // namespace varnello
