#include "desktop/window/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QScreen>
#include <QStandardPaths>

#include "desktop/choosers/favorites_dialogs.h"
#include "desktop/choosers/number_dialog.h"
#include "desktop/choosers/players_dialog.h"
#include "desktop/customize/customize_dialog.h"
#include "desktop/help/about_dialog.h"
#include "desktop/help/pages.h"
#include "desktop/platform/text.h"
#include "desktop/reports/finish_dialog.h"
#include "desktop/reports/game_stat_dialog.h"
#include "desktop/reports/high_score_dialog.h"
#include "desktop/reports/history_dialog.h"
#include "desktop/reports/log_dialog.h"
#include "desktop/reports/session_dialog.h"

namespace varnello {
namespace {

constexpr int kToolbarHeight = 25;        // pixels of the strip along the top
constexpr QSize kRestoredSize(673, 437);  // client area of the restored window
constexpr QSize kFileDialogSize(760, 500);
constexpr int kMenuPoll = 100;  // milliseconds
constexpr int kCounterPoll = 500;
constexpr int kReplayStep = 500;

}  // namespace

MainWindow::MainWindow(const System& system) : table_(new TableView) {
    engine_ = std::make_unique<Engine>(Desktop{system.settings, system.clock, *table_,
                                               system.sounds, *this, system.dataFolder, dates_});
    table_->SetEngine(engine_.get());

    auto* client = new QWidget;
    client->installEventFilter(this);
    setCentralWidget(client);
    menu_ = std::make_unique<MainMenu>(*menuBar(), *engine_, static_cast<Shell&>(*this));
    toolbar_ = new Toolbar(*menu_, client);
    table_->setParent(client);

    engine_->InitMain();
    menu_->UpdateMenus();
    toolbar_->UpdateToolbar();
    setWindowTitle(ToQt(kProductName));
    resize(kRestoredSize + QSize(0, menuBar()->sizeHint().height()));
    move(screen()->availableGeometry().center() - rect().center());
    StartTimers();
}

MainWindow::~MainWindow() {
    // The view goes with the window's children, after the engine.
    centralWidget()->removeEventFilter(this);
}

void MainWindow::StartTimers() {
    tmrForward_.setInterval(kReplayStep);
    tmrBackward_.setInterval(kReplayStep);
    connect(&tmrMain_, &QTimer::timeout, this, &MainWindow::OnMainTimer);
    connect(&tmrTime_, &QTimer::timeout, this, [this] {
        menu_->ShowCounters(engine_->TimeTick());
        table_->Sync();
    });
    connect(&tmrForward_, &QTimer::timeout, this, [this] {
        engine_->ForwardTick();
        Refresh();
    });
    connect(&tmrBackward_, &QTimer::timeout, this, [this] {
        engine_->BackwardTick();
        Refresh();
    });
    tmrMain_.start(kMenuPoll);
    tmrTime_.start(kCounterPoll);
}

void MainWindow::OnMainTimer() {
    menu_->UpdateMenus();
    toolbar_->UpdateToolbar();
    setWindowTitle(ToQt(engine_->Caption()));
    OnReplayTimers();
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
    follow(tmrForward_, engine_->ForwardOn());
    follow(tmrBackward_, engine_->BackwardOn());
}

void MainWindow::Refresh() {
    table_->Sync();
    OnReplayTimers();
}

void MainWindow::LayoutMain() {
    if (isMinimized()) return;
    const QRect client = centralWidget()->rect();
    const int top = engine_->data.Get(keys::ShowToolbar) == 0 ? 0 : kToolbarHeight;
    toolbar_->setGeometry(0, 0, client.width(), kToolbarHeight);
    table_->setGeometry(0, top, client.width(), std::max(client.height() - top, 0));
    table_->raise();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == centralWidget() && event->type() == QEvent::Resize) LayoutMain();
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (engine_->Dealing()) {
        // First the deal has to come back; it leaves no game behind.
        engine_->AbandonDeal();
        event->ignore();
        QTimer::singleShot(0, this, &QWidget::close);
        return;
    }
    if (engine_->data.GameRunning) engine_->EndGame(0);
    event->accept();
    Q_EMIT Closed();
}

SelectDialog* MainWindow::MakeSelect() {
    auto* dialog = new SelectDialog(*engine_, this);
    connect(dialog, &SelectDialog::RulesAsked, this,
            [this](const QString& game) { ShowRules(game.toStdString()); });
    return dialog;
}

void MainWindow::ShowSelectModeless() {
    if (!select_) select_ = MakeSelect();
    select_->show();
    select_->raise();
    select_->activateWindow();
}

void MainWindow::ShowSelect() {
    if (select_) return ShowSelectModeless();
    select_ = MakeSelect();
    select_->setWindowModality(Qt::WindowModal);  // so that the rules can be read beside it
    select_->exec();
}

void MainWindow::ShowChoose() { NumberDialog(*engine_, this).exec(); }

void MainWindow::ShowOrganizeFavorites() { OrganizeFavoritesDialog(*engine_, this).exec(); }

void MainWindow::ShowPlayFavorites() { PlayFavoriteDialog(*engine_, this).exec(); }

void MainWindow::ShowPlayers() { PlayersDialog(*engine_, this).exec(); }

void MainWindow::ShowHistory() {
    if (engine_->data.GameRunning) HistoryDialog(engine_->trans(), this).exec();
}

void MainWindow::ShowGameStat() { GameStatDialog(*engine_, Front()).exec(); }

void MainWindow::ShowSesStat() { SessionDialog(*engine_, this).exec(); }

void MainWindow::ShowHighScore() { HighScoreDialog(*engine_, Front()).exec(); }

void MainWindow::ShowLogStat() { LogDialog(*engine_, this).exec(); }

void MainWindow::ShowHelp() {
    ShowRules(engine_->data.GameRunning ? engine_->data.CurGName() : std::string());
}

void MainWindow::ShowRules(const std::string& game) {
    if (!help_) {
        help_ = new HelpWindow(nullptr);
        connect(this, &QObject::destroyed, help_, &QObject::deleteLater);
    }
    help_->ShowPage(PageNameOf(engine_->data.GetGameID(game)));
}

void MainWindow::ShowAbout() { AboutDialog(this).exec(); }

QWidget* MainWindow::Front() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : this;
}

void MainWindow::Inform(const std::string& text) {
    QMessageBox::information(Front(), ToQt(kProductName), ToQt(text));
}

void MainWindow::Refuse(const std::string& text) {
    QMessageBox::critical(Front(), ToQt(kProductName), ToQt(text));
}

bool MainWindow::Ask(const std::string& text) {
    return QMessageBox::question(Front(), ToQt(kProductName), ToQt(text)) == QMessageBox::Yes;
}

bool MainWindow::AskToStop(const std::string& text) {
    const auto answer = QMessageBox::critical(Front(), ToQt(kProductName), ToQt(text),
                                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    return answer == QMessageBox::Yes;
}

std::optional<ChosenFile> MainWindow::AskForTextFile(const std::string& proposal) {
    QFileDialog dialog(Front(), QStringLiteral("Export Statistics"),
                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                       QStringLiteral("Text File (*.txt)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);  // asks before it overwrites
    dialog.selectFile(ToQt(proposal));
    dialog.resize(kFileDialogSize);
    if (dialog.exec() != QDialog::Accepted) return {};
    const QString file = dialog.selectedFiles().value(0);
    return ChosenFile{.Path = file.toStdU16String(),
                      .Name = QDir::toNativeSeparators(file).toStdString()};
}

void MainWindow::ShowCustomize() {
    if (CustomizeDialog(*engine_, this).exec() != QDialog::Accepted) return;
    table_->RefreshBackground();
    table_->RefreshDecks();
}

void MainWindow::ShowFinish() {
    FinishChoice choice = FinishChoice::Close;
    {
        FinishDialog dialog(engine_->LoadFinish(), this);
        connect(&dialog, &FinishDialog::StatisticsAsked, this, &MainWindow::ShowGameStat);
        connect(&dialog, &FinishDialog::HighScoreAsked, this, &MainWindow::ShowHighScore);
        dialog.exec();
        choice = dialog.Choice();
    }
    switch (choice) {
        case FinishChoice::NewGame: return engine_->NewGame();
        case FinishChoice::SelectGame: return ShowSelect();
        case FinishChoice::RestartGame:
            return engine_->StartGame(engine_->data.CurGName(), engine_->data.CurGNo);
        case FinishChoice::Close: break;
    }
}

}  // namespace varnello
