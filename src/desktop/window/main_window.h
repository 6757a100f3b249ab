#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <memory>

#include "desktop/choosers/select_dialog.h"
#include "desktop/help/help_window.h"
#include "desktop/platform/dates.h"
#include "desktop/window/main_menu.h"
#include "desktop/window/table_view.h"
#include "desktop/window/toolbar.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `frmMain`: the window that carries the table, its menus and toolbar, and the timers that keep
/// everything current by polling.
class MainWindow : public QMainWindow, public Dialogs, private Shell {
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

    /// The selector, modeless over the window, as at the program's start.
    void ShowSelectModeless();

    Engine& engine() { return *engine_; }
    TableView& table() { return *table_; }
    const MainMenu& menu() const { return *menu_; }
    const Toolbar& toolbar() const { return *toolbar_; }
    SelectDialog* select() const { return select_; }

    void Inform(const std::string& text) override;
    void Refuse(const std::string& text) override;
    bool Ask(const std::string& text) override;
    bool AskToStop(const std::string& text) override;
    std::optional<ChosenFile> AskForTextFile(const std::string& proposal) override;
    void ShowFinish() override;

Q_SIGNALS:
    /// The window is gone and with it the program.
    void Closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowSelect() override;
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
    void LayoutMain() override;
    void Refresh() override;
    SelectDialog* MakeSelect();
    /// The window that a message box belongs to.
    QWidget* Front();
    void OnMainTimer();
    void OnReplayTimers();
    void StartTimers();

    LocaleDates dates_;
    TableView* table_;
    std::unique_ptr<Engine> engine_;
    std::unique_ptr<MainMenu> menu_;
    Toolbar* toolbar_ = nullptr;
    QPointer<SelectDialog> select_;
    HelpWindow* help_ = nullptr;  ///< made on first use
    QTimer tmrMain_;
    QTimer tmrTime_;
    QTimer tmrForward_;
    QTimer tmrBackward_;
};

}  // namespace varnello
