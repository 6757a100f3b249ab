#include "desktop/window/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>

#include "desktop/accessible/table_voice.h"
#include "desktop/choosers/favorites_dialogs.h"
#include "desktop/choosers/number_dialog.h"
#include "desktop/choosers/players_dialog.h"
#include "desktop/customize/customize_dialog.h"
#include "desktop/help/about_dialog.h"
#include "desktop/help/pages.h"
#include "desktop/platform/questions.h"
#include "desktop/platform/text.h"
#include "desktop/platform/type_ahead.h"
#include "desktop/platform/words.h"
#include "desktop/reports/finish_dialog.h"
#include "desktop/reports/game_stat_dialog.h"
#include "desktop/reports/high_score_dialog.h"
#include "desktop/reports/history_dialog.h"
#include "desktop/reports/log_dialog.h"
#include "desktop/reports/scores_access.h"
#include "desktop/reports/session_dialog.h"

namespace varnello {
namespace {

constexpr int kToolbarHeight = 25;        // pixels of the strip along the top
constexpr QSize kRestoredSize(673, 437);  // client area of the restored window
constexpr QSize kLeastSize(400, 300);
constexpr int kBeat = 500;      // milliseconds
constexpr int kMenuPoll = 100;  // milliseconds
constexpr int kTryAgain = 50;

}  // namespace

MainWindow::MainWindow(const System& system) : motion_(system.sounds) {
    engine_ = std::make_unique<Engine>(Desktop{system.settings, system.clock, motion_, motion_,
                                               *this, system.dataFolder, dates_, disk_});
    engine_->life().OnStart([this] { BeforeStart(); });
    motion_.SetCardSpeed([this] { return engine_->data().Get(keys::CardSpeed); });
    motion_.SetFrameRate(screen()->refreshRate());
    connect(&motion_, &Motion::Shown, this, &MainWindow::OnShown);

    menu_ = std::make_unique<MainMenu>(*menuBar(), *engine_, static_cast<Shell&>(*this));
    LoadTable();
    engine_->InitMain();
    menu_->UpdateMenus();
    toolbar_->UpdateToolbar();
    setWindowTitle(ToQt(kProductName));
    setMinimumSize(kLeastSize);
    resize(kRestoredSize + QSize(0, menuBar()->sizeHint().height()));
    // `move` places the frame, whose title counts; nobody knows its height before it is shown.
    const QSize framed = size() + QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    move(
        QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, framed, screen()->availableGeometry())
            .topLeft());
    StartTimers();
    AddZoomKeys();
    new TypeAhead(this);
    QApplication::instance()->installEventFilter(this);
}

MainWindow::~MainWindow() {
    QApplication::instance()->removeEventFilter(this);
    help_.reset();  // it stands beside the table
    delete table_;  // before what it shows
}

void MainWindow::LoadTable() {
    auto* client = new QWidget;
    setCentralWidget(client);
    toolbar_ = new Toolbar(*menu_, client);
    table_ = new TableView(motion_, *engine_, client);
    table_->setFocus();
    new TableVoice(motion_, *table_);  // the table's
}

void MainWindow::AddZoomKeys() {
    const std::pair<QKeyCombination, int> keys[] = {{Qt::CTRL | Qt::Key_Plus, 1},
                                                    {Qt::CTRL | Qt::Key_Equal, 1},
                                                    {Qt::CTRL | Qt::Key_Minus, -1},
                                                    {Qt::CTRL | Qt::Key_0, 0}};
    for (const auto& [key, direction] : keys) {
        connect(new QShortcut(key, this), &QShortcut::activated, this,
                [this, direction = direction] { table_->ZoomBy(direction); });
    }
}

void MainWindow::StartTimers() {
    SetBeat(kBeat, kBeat);
    connect(&tmrMain_, &QTimer::timeout, this, &MainWindow::OnMainTimer);
    connect(&tmrTime_, &QTimer::timeout, this,
            [this] { menu_->Counters().ShowCounters(engine_->counters().TimeTick()); });
    connect(&tmrForward_, &QTimer::timeout, this, [this] { ReplayTick(&Replay::ForwardTick); });
    connect(&tmrBackward_, &QTimer::timeout, this, [this] { ReplayTick(&Replay::BackwardTick); });
    breath_.setSingleShot(true);
    connect(&breath_, &QTimer::timeout, this, &MainWindow::ShowFinish);
    tmrMain_.start(kMenuPoll);
    tmrTime_.start();
}

void MainWindow::SetBeat(int counters, int replay) {
    tmrTime_.setInterval(counters);
    tmrForward_.setInterval(replay);
    tmrBackward_.setInterval(replay);
}

void MainWindow::OnMainTimer() {
    // A name may hold what the toolkit takes for the mark of a changed document.
    setWindowTitle(
        ToQt(engine_->life().Caption()).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
    Refresh();
}

void MainWindow::ReplayTick(void (Replay::*tick)()) {
    if (motion_.Showing()) {
        waitingTick_ = tick;
        engine_->replay().TickBegins();
        return Refresh();
    }
    (engine_->replay().*tick)();
    Refresh();
}

void MainWindow::OnShown() {
    engine_->life().Shown();
    Refresh();
    table_->TellOfZoom();
    if (const auto tick = std::exchange(waitingTick_, nullptr)) ReplayTick(tick);
}

void MainWindow::AwaitFinish() {
    if (engine_->life().phase() == Phase::Won && !motion_.Showing() && !breath_.isActive()) {
        breath_.start(breathTime_);
    }
}

void MainWindow::Settle() {
    waitingTick_ = nullptr;  // the timer ticks again, unless this is what ends the replay
    motion_.Finish();
    if (breath_.isActive()) breath_.start(0);
}

bool MainWindow::FilterInput(QObject* watched, QEvent* event) {
    const bool dealing = engine_->life().phase() == Phase::Dealing;
    switch (event->type()) {
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress: {
            const auto* key = static_cast<QKeyEvent*>(event);
            const int code = key->key();
            if (code == Qt::Key_Control || code == Qt::Key_Shift || code == Qt::Key_Alt ||
                code == Qt::Key_Meta || code == Qt::Key_AltGr) {
                return false;
            }
            if (key->isAutoRepeat() && motion_.Showing()) {
                event->accept();  // so that it isn't taken for a shortcut either
                return true;
            }
            // A command decides for itself what becomes of a deal, a dialog lets it go on.
            if (!dealing || (event->type() == QEvent::KeyPress && isActiveWindow())) Settle();
            return false;
        }
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
            if (!watched->isWidgetType() || (dealing && watched != table_)) return false;
            Settle();
            return dealing;
        default: return false;
    }
}

void MainWindow::OnReplayTimers() {
    const auto follow = [](QTimer& timer, bool on) {
        if (on == timer.isActive()) return;
        if (on) {
            timer.start();
        } else {
            timer.stop();
        }
    };
    follow(tmrForward_, engine_->replay().ForwardOn());
    follow(tmrBackward_, engine_->replay().BackwardOn());
}

void MainWindow::Refresh() {
    menu_->UpdateMenus();
    toolbar_->UpdateToolbar();
    Q_ASSERT(motion_.Showing() || LooksSame(motion_.Scene(), engine_->table()));
    OnReplayTimers();
    AwaitFinish();
}

void MainWindow::LayoutMain() {
    if (isMinimized()) return;
    const QRect client = centralWidget()->rect();
    const int top = engine_->data().Get(keys::ShowToolbar) == 0 ? 0 : kToolbarHeight;
    toolbar_->setGeometry(0, 0, client.width(), kToolbarHeight);
    table_->setGeometry(0, top, client.width(), std::max(client.height() - top, 0));
    table_->raise();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == centralWidget() && event->type() == QEvent::Resize) LayoutMain();
    // A dialog or a menu opens; from now on the table gets no release.
    const auto* widget = event->type() == QEvent::Show ? qobject_cast<QWidget*>(watched) : nullptr;
    if (widget && widget->isWindow() && widget->windowType() != Qt::ToolTip) {
        table_->CancelGesture();
    }
    if (event->type() == QEvent::KeyPress && table_->Carrying() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        table_->CancelGesture();
        return true;
    }
    if ((motion_.Showing() || breath_.isActive()) && FilterInput(watched, event)) return true;
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    // The window may have been made larger or smaller while it was minimised.
    if (event->type() == QEvent::WindowStateChange && table_) LayoutMain();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    engine_->Leave();
    ShowMessages();  // of a result that couldn't be written
    event->accept();
    Q_EMIT Closed();
}

void MainWindow::EndSession() {
    engine_->Leave();
    for (const Message& message : messages_) {
        qWarning("%s", qPrintable(Localized(message.text)));
    }
    messages_.clear();
    Q_EMIT Closed();
}

void MainWindow::BeforeStart() {
    breath_.stop();
    finish_.reset();
    waitingTick_ = nullptr;
    table_->RefreshDecks();
    if (select_) select_->close();
}

void MainWindow::Play(const std::optional<GameChoice>& choice) {
    if (!choice) return;
    if (choice->Player && engine_->data().FindPlayer(*choice->Player) != 0)
        engine_->data().CurPlayer(*choice->Player);
    engine_->life().StartGame(choice->Game,
                              choice->Number ? *choice->Number : engine_->choosing().RandomGNo());
    Refresh();
}

void MainWindow::OpenSelect(Qt::WindowModality modality) {
    if (select_) select_->close();
    BookWin();
    select_ = new SelectDialog(*engine_, this);
    connect(select_, &SelectDialog::RulesAsked, this,
            [this](const QString& game) { ShowRules(game.toStdString()); });
    connect(select_, &SelectDialog::Chosen, this, &MainWindow::Play);
    select_->setWindowModality(modality);
    select_->show();
    select_->raise();
    select_->activateWindow();
}

template <typename Dialog>
void MainWindow::RunChooser() {
    BookWin();
    Dialog dialog(*engine_, this);
    dialog.exec();
    Play(dialog.Choice());
}

void MainWindow::ShowChoose() { RunChooser<NumberDialog>(); }

void MainWindow::ShowPlayFavorites() { RunChooser<PlayFavoriteDialog>(); }

void MainWindow::ShowOrganizeFavorites() { OrganizeFavoritesDialog(*engine_, this).exec(); }

void MainWindow::ShowPlayers() {
    BookWin();
    PlayersDialog(*engine_, this).exec();
}

void MainWindow::ShowHistory() {
    if (!engine_->data().GameRunning) return;
    HistoryDialog(engine_->trans(), engine_->data().Store(), this).exec();
}

template <typename Report, typename... Options>
std::optional<GameChoice> MainWindow::DealFrom(Options... options) {
    Report report(*engine_, options..., Front());
    std::optional<GameChoice> choice;
    connect(&report, &Report::DealAsked, &report, [&](const GameChoice& deal) {
        NumberDialog dialog(*engine_, &report);
        dialog.Propose(deal);
        dialog.exec();
        choice = dialog.Choice();
        if (choice) report.accept();
    });
    report.exec();
    return choice;
}

void MainWindow::ShowGameStat() {
    BookWin();
    if (OpenScores(*engine_, Front())) GameStatDialog(*engine_, Front()).exec();
}

void MainWindow::ShowSesStat() {
    BookWin();
    Play(DealFrom<SessionDialog>());
}

void MainWindow::ShowHighScore() {
    BookWin();
    Play(DealOfHighScore(false));
}

std::optional<GameChoice> MainWindow::DealOfHighScore(bool won) {
    if (!OpenScores(*engine_, Front())) return {};
    return DealFrom<HighScoreDialog>(won);
}

void MainWindow::ShowLogStat() {
    BookWin();
    if (OpenScores(*engine_, Front())) Play(DealFrom<LogDialog>());
}

void MainWindow::ShowHelp() {
    ShowRules(engine_->data().GameRunning ? engine_->data().CurGName() : std::string());
}

void MainWindow::ShowRules(const std::string& game) {
    if (!help_) help_ = std::make_unique<HelpWindow>(engine_->data().Store(), *table_);
    help_->ShowPage(PageNameOf(engine_->data().GetGameID(game)));
}

void MainWindow::ShowAbout() { AboutDialog(this).exec(); }

QWidget* MainWindow::Front() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : this;
}

void MainWindow::Inform(const Phrase& text) { Tell(QMessageBox::Information, text); }

void MainWindow::Refuse(const Phrase& text) { Tell(QMessageBox::Critical, text); }

void MainWindow::Warn(const Phrase& text) { Tell(QMessageBox::Warning, text); }

void MainWindow::Tell(QMessageBox::Icon icon, const Phrase& text) {
    messages_.push_back({icon, text});
    QMetaObject::invokeMethod(this, &MainWindow::ShowMessages, Qt::QueuedConnection);
}

void MainWindow::ShowMessages() {
    if (std::exchange(telling_, true)) return;
    while (!messages_.empty()) {
        const Message message = messages_.front();
        messages_.pop_front();
        TellInBox(Front(), message.text, message.icon);
    }
    telling_ = false;
}

void MainWindow::ShowCustomize() {
    if (CustomizeDialog(*engine_, this).exec() != QDialog::Accepted) return;
    table_->RefreshBackground();
    table_->RefreshDecks();
}

void MainWindow::BookWin() {
    if (engine_->life().phase() != Phase::Won) return;
    motion_.Finish();
    finish_ = engine_->life().LoadFinish();
    breath_.start(0);
}

void MainWindow::ShowFinish() {
    const bool busy = QApplication::mouseButtons() != Qt::NoButton ||
                      QApplication::activePopupWidget() || QApplication::activeModalWidget();
    if (busy) return breath_.start(kTryAgain);
    BookWin();
    if (!finish_) return;
    breath_.stop();
    const FinishFigures figures = *std::exchange(finish_, std::nullopt);
    FinishChoice choice = FinishChoice::Close;
    std::optional<GameChoice> deal;
    {
        FinishDialog dialog(figures, LoadOwnWins(*engine_, this), this);
        connect(&dialog, &FinishDialog::StatisticsAsked, this, &MainWindow::ShowGameStat);
        connect(&dialog, &FinishDialog::HighScoreAsked, this, [&] {
            deal = DealOfHighScore(true);
            if (deal) dialog.reject();
        });
        dialog.exec();
        choice = dialog.Choice();
    }
    if (deal) return Play(deal);
    switch (choice) {
        case FinishChoice::NewGame: engine_->commands().NewGame(); return Refresh();
        case FinishChoice::SelectGame: return OpenSelect(Qt::WindowModal);
        case FinishChoice::RestartGame:
            return Play(
                GameChoice{.Game = engine_->data().CurGName(), .Number = engine_->data().CurGNo});
        case FinishChoice::Close: break;
    }
}

}  // namespace varnello
