#include "desktop/window/toolbar.h"

#include <QFrame>
#include <QHBoxLayout>

#include "desktop/appearance/icons.h"

namespace varnello {
namespace {

constexpr QSize kButton(41, 25);  // device-independent pixels

QFrame* Separator(QWidget* parent) {
    auto* line = new QFrame(parent);
    line->setFrameShape(QFrame::VLine);
    line->setFrameShadow(QFrame::Sunken);
    line->setFixedSize(9, kButton.height() - 8);
    return line;
}

}  // namespace

Toolbar::Toolbar(const MainMenu& menu, QWidget* parent) : QWidget(parent), menu_(menu) {
    setAutoFillBackground(true);
    auto* strip = new QHBoxLayout(this);
    strip->setContentsMargins(2, 0, 2, 0);
    strip->setSpacing(0);

    const auto button = [&](int index, const char* icon, const QString& tip, QAction* item) {
        auto* made = new QToolButton(this);
        made->setIcon(SmallIcon(QString::fromLatin1(icon)));
        made->setIconSize(QSize(16, 16));
        made->setFixedSize(kButton);
        made->setAutoRaise(true);
        made->setFocusPolicy(Qt::NoFocus);
        made->setToolTip(tip);
        made->setAccessibleName(tip);
        connect(made, &QToolButton::clicked, item, &QAction::trigger);
        strip->addWidget(made);
        buttons_[static_cast<std::size_t>(index)] = made;
        items_[static_cast<std::size_t>(index)] = item;
    };
    const auto separator = [&] { strip->addWidget(Separator(this)); };

    button(1, "new", tr("New Game"), menu.mFile(FileItem::New));
    button(2, "select", tr("Select Game"), menu.mFile(FileItem::Select));
    button(3, "restart", tr("Restart Game"), menu.mFile(FileItem::Restart));
    separator();
    button(5, "autoplay", tr("Autoplay"), menu.mGame(GameItem::Autoplay));
    separator();
    button(7, "undo", tr("Undo"), menu.mGame(GameItem::Undo));
    button(8, "redo", tr("Redo"), menu.mGame(GameItem::Redo));
    separator();
    button(10, "back", tr("Replay Back"), menu.mReplay(ReplayItem::Back));
    button(11, "stop", tr("Replay Stop"), menu.mReplay(ReplayItem::Stop));
    button(12, "forward", tr("Replay Forward"), menu.mReplay(ReplayItem::Forward));
    separator();
    button(14, "statistics", tr("Statistics"), menu.mStat(StatItem::Game));
    separator();
    button(16, "help", tr("Help"), menu.mHelp(HelpItem::Rules));
    strip->addStretch();
    Button(5)->setCheckable(true);
}

void Toolbar::UpdateToolbar() {
    for (std::size_t i = 1; i < buttons_.size(); ++i) {
        if (buttons_[i]) buttons_[i]->setEnabled(items_[i]->isEnabled());
    }
    Button(5)->setChecked(menu_.Marks().AutoplayPressed);
}

}  // namespace varnello
