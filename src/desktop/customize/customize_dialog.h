#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTreeWidget>
#include <array>

#include "desktop/customize/look_preview.h"
#include "engine/flow/engine.h"

namespace varnello {

/// `frmCustomize`: look, speeds, sounds and counters. The general tab acts at once; what the other
/// tabs choose is a copy that reaches the settings on OK alone.
class CustomizeDialog : public QDialog {
    Q_OBJECT

public:
    CustomizeDialog(Engine& engine, QWidget* parent);

private:
    QWidget* MakeGeneral();
    QWidget* MakeCounters();
    QWidget* MakeRange();
    QWidget* MakeRecent();
    QWidget* MakeStatistics();
    QWidget* MakeBackground();
    QWidget* MakeDecks();
    QWidget* MakeAnimationAndSounds();
    void FillBackgrounds();
    void FillDecks();
    void FillSounds();
    void ChooseBackground();
    void ChooseDeck();
    void ChooseColor();
    void PaintPreviews();
    QIcon IconOfBackground(int bgIndex) const;
    void ShowCustomColor();
    void UpdateColorControls(bool hasTag);
    void ClearRecent();
    void Ok();
    void StoreSpeedsAndSounds();

    Engine& engine_;
    // The working copies.
    BackgroundChoice background_;
    int deck_;

    QTabWidget* SSTab1_;
    QComboBox* imcRange_ = nullptr;
    QPushButton* cmdClearRecent_ = nullptr;
    QTreeWidget* tvBGround_;
    QTreeWidgetItem* customItem_ = nullptr;
    LookPreview* Picture1_;
    QCheckBox* chkFade_;
    QPushButton* cmdCustom_;
    QTreeWidget* tvDeck_;
    LookPreview* picDeckBack_;
    std::array<QSlider*, 4> sliders_{};
    QListWidget* lvSound_;
};

}  // namespace varnello
