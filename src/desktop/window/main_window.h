#pragma once

#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <deque>
#include <memory>
#include <optional>

#include "desktop/choosers/game_choice.h"
#include "desktop/choosers/select_dialog.h"
#include "desktop/help/help_window.h"
#include "desktop/platform/dates.h"
#include "desktop/platform/system.h"
#include "desktop/window/main_menu.h"
#include "desktop/window/motion.h"
#include "desktop/window/table_view.h"
#include "desktop/window/toolbar.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `frmMain`: the window that carries the table, its menus and toolbar, and the timers that keep
/// everything current by polling. It alone starts games, opens dialogs and asks questions; no call
/// into the engine waits for any of them.
class MainWindow : public QMainWindow, public Messages, private Shell {
    Q_OBJECT

public:
    /// What the window takes from the system.
    struct System {
        SettingsStore& settings;
        Clock& clock;
        SoundPlayer& sounds;
        std::filesystem::path dataFolder;
    };

    explicit MainWindow(const System& system);
    ~MainWindow() override;

    /// The selector, freshly loaded and modeless over the window. It goes when a game begins.
    void ShowSelect() override { OpenSelect(Qt::NonModal); }

    /// What the close box does, without a word: the session ends and nobody would read it.
    void EndSession();

    Engine& engine() { return *engine_; }
    TableView& table() { return *table_; }
    Motion& motion() { return motion_; }
    /// How long a won game rests before its dialog opens, in milliseconds.
    void SetBreath(int milliseconds) { breathTime_ = milliseconds; }
    /// How often the counters and a replay go on, in milliseconds.
    void SetBeat(int counters, int replay);
    const MainMenu& menu() const { return *menu_; }
    const Toolbar& toolbar() const { return *toolbar_; }
    SelectDialog* select() const { return select_; }

    void Inform(const Phrase& text) override;
    void Refuse(const Phrase& text) override;
    void Warn(const Phrase& text) override;

Q_SIGNALS:
    /// The window is gone and with it the program.
    void Closed();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Tell(QMessageBox::Icon icon, const Phrase& text);

    struct Message {
        QMessageBox::Icon icon;
        Phrase text;
    };

    /// Starts what a dialog has chosen, if anything.
    void Play(const std::optional<GameChoice>& choice);
    /// Runs a window with a list of deals to its end; the result is what a person chose to play of
    /// them. The number chooser asks once more over it.
    template <typename Report, typename... Options>
    std::optional<GameChoice> DealFrom(Options... options);
    /// `won`: marks the game that was just won.
    std::optional<GameChoice> DealOfHighScore(bool won);
    /// A game begins, whoever asked for it: what belongs to the last one goes.
    void BeforeStart();
    /// Shows a window that chooses a deal, and plays what was chosen.
    template <typename Dialog>
    void RunChooser();
    void ShowChoose() override;
    void ShowOrganizeFavorites() override;
    void ShowPlayFavorites() override;
    void ShowPlayers() override;
    void ShowHistory() override;
    void ShowGameStat() override;
    void ShowSesStat() override;
    void ShowHighScore() override;
    void ShowLogStat() override;
    void ShowCustomize() override;
    void ShowHelp() override;
    void ShowContents() override { ShowRules({}); }
    void ShowAbout() override;
    /// The help page of a game; the contents for a name that is no game's.
    void ShowRules(const std::string& game);
    /// Makes the table and the toolbar above it.
    void LoadTable();
    void LayoutMain() override;
    void Refresh() override;
    void Settle() override;
    /// Books a game that is won, ahead of the dialog that tells it: its result is to be seen in
    /// what opens now.
    void BookWin();
    /// After the last flight a won game rests for a breath; then its dialog opens, as soon as
    /// nothing else is open and no button is held.
    void AwaitFinish();
    void ShowFinish();
    void OpenSelect(Qt::WindowModality modality);
    void ShowMessages();
    /// What a press does to what is in motion. True when it has done all that the press is for.
    bool FilterInput(QObject* watched, QEvent* event);
    /// The window that a dialog belongs to.
    QWidget* Front();
    void OnMainTimer();
    void OnReplayTimers();
    void OnShown();
    /// One step of a replay, once the last one has been shown.
    void ReplayTick(void (Replay::*tick)());
    void StartTimers();
    /// Ctrl with plus, equals, minus and 0.
    void AddZoomKeys();

    LocaleDates dates_;
    SystemDisk disk_;
    Motion motion_;
    std::unique_ptr<Engine> engine_;
    TableView* table_ = nullptr;
    std::unique_ptr<MainMenu> menu_;
    Toolbar* toolbar_ = nullptr;
    QPointer<SelectDialog> select_;
    std::unique_ptr<HelpWindow> help_;  ///< made on first use
    QTimer tmrMain_;
    QTimer tmrTime_;
    QTimer tmrForward_;
    QTimer tmrBackward_;
    QTimer breath_;
    int breathTime_ = 500;  ///< milliseconds
    void (Replay::*waitingTick_)() = nullptr;
    std::optional<FinishFigures> finish_;  ///< booked, and its dialog still to be opened
    std::deque<Message> messages_;
    bool telling_ = false;
};

}  // namespace varnello
