#include "desktop/customize/customize_dialog.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/appearance/colours.h"
#include "desktop/customize/scrolled_page.h"
#include "desktop/platform/questions.h"
#include "desktop/platform/text.h"
#include "desktop/platform/window_size.h"
#include "desktop/platform/words.h"
#include "desktop/reports/scores_access.h"

namespace varnello {
namespace {

constexpr QSize kClient(470, 380);  // a little more than the classic 450 by 353

struct SpeedRow {
    const char* caption;
    NumberKey key;
};
constexpr std::array kSpeeds{
    SpeedRow{QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Card Moving Speed"), keys::CardSpeed},
    SpeedRow{QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Undo/Redo Speed"), keys::UndoSpeed},
    SpeedRow{QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Undoall/Redoall Speed"),
             keys::UndoallSpeed},
    SpeedRow{QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Replay Speed"), keys::ReplaySpeed}};
constexpr int kSlowest = 50;  // the stored value of a slider's left end; the right end is 0

struct CounterRow {
    const char* text;
    NumberKey key;
};
constexpr std::array kCounters{
    CounterRow{QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Show Time"), keys::ShowTime},
    CounterRow{QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Show Score"), keys::ShowScore},
    CounterRow{QT_TRANSLATE_NOOP("varnello::CustomizeDialog", "Show Moves"), keys::ShowMoves}};

/// Where the slider of a speed stands; for a stored value outside its range at the nearest end.
int PositionOf(const cData& data, const NumberKey& speed) {
    return std::clamp(kSlowest - data.Get(speed), 0, kSlowest);
}

std::int32_t ValueOfColour(const QColor& colour) {
    return colour.red() + 256 * colour.green() + 65536 * colour.blue();
}

}  // namespace

CustomizeDialog::CustomizeDialog(Engine& engine, QWidget* parent)
    : QDialog(parent),
      engine_(engine),
      background_(StoredBackground(engine.data())),
      deck_(engine.data().Get(keys::DeckIndex)),
      SSTab1_(new QTabWidget),
      tvBGround_(new QTreeWidget),
      Picture1_(new LookPreview(tr("Background preview"))),
      chkFade_(new QCheckBox(tr("&Fade Background"))),
      cmdCustom_(new QPushButton(tr("Colors.."))),
      tvDeck_(new QTreeWidget),
      picDeckBack_(new LookPreview(tr("Deck preview"))),
      lvSound_(new QListWidget) {
    setWindowTitle(tr("Customize"));
    SSTab1_->addTab(new ScrolledPage(MakeGeneral()), tr("General"));
    SSTab1_->addTab(MakeBackground(), tr("Background"));
    SSTab1_->addTab(MakeDecks(), tr("Decks"));
    SSTab1_->addTab(new ScrolledPage(MakeAnimationAndSounds()), tr("Animation && Sounds"));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* all = new QVBoxLayout(this);
    all->addWidget(SSTab1_);
    all->addWidget(buttons);
    SSTab1_->setUsesScrollButtons(false);  // all four stand there at once
    SSTab1_->setMinimumSize(BoundedByScreen(*this, kClient));
    setFixedSize(BoundedByScreen(*this, sizeHint()));
    connect(buttons, &QDialogButtonBox::accepted, this, &CustomizeDialog::Ok);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void CustomizeDialog::PaintPreviews() {
    Picture1_->ShowBackground(background_);
    picDeckBack_->ShowBackground(background_);
}

void CustomizeDialog::ChooseColor() {
    const QColor now = ColourOfValue(background_.customColor).value_or(Qt::black);
    const QColor chosen = QColorDialog::getColor(now, this);
    if (!chosen.isValid()) return;
    background_.customColor = ValueOfColour(chosen);
    ShowCustomColor();
}

void CustomizeDialog::ClearRecent() {
    if (!AskYesNo(this, kClearRecentQuestion)) return;
    cmdClearRecent_->setEnabled(false);
    engine_.choosing().ClearRecentGames();
}

void CustomizeDialog::Ok() {
    cData& data = engine_.data();
    data.Together([&] {
        StoreSpeedsAndSounds();
        data.Set(keys::BGIndex, static_cast<std::int16_t>(background_.bgIndex));
        if (background_.fade != StoredBackground(data).fade) {
            data.Set(keys::Fade, background_.fade ? 1 : 0);
        }
        data.CustomColor(background_.customColor);
        data.Set(keys::DeckIndex, static_cast<std::int16_t>(deck_));
    });
    accept();
}

// A control that still shows what its stored value shows leaves that value alone, which needn't be
// one that the control can give.
void CustomizeDialog::StoreSpeedsAndSounds() {
    cData& data = engine_.data();
    for (std::size_t i = 0; i < kSpeeds.size(); ++i) {
        const int position = sliders_[i]->value();
        if (position == PositionOf(data, kSpeeds[i].key)) continue;
        data.Set(kSpeeds[i].key, static_cast<std::int16_t>(kSlowest - position));
    }
    for (const SoundRow& row : kSounds) {
        const bool on = lvSound_->item(static_cast<int>(row.Event))->checkState() == Qt::Checked;
        if (on != data.SoundOn(row.Event))
            data.Set(SwitchOf(row.Event), on ? kTrue : std::int16_t{0});
    }
}

QWidget* CustomizeDialog::MakeCounters() {
    auto* frame = new QGroupBox(tr("Counters"));
    auto* rows = new QVBoxLayout(frame);
    for (const CounterRow& row : kCounters) {
        auto* box = new QCheckBox(tr(row.text));
        box->setChecked(engine_.data().Get(row.key) == 1);
        connect(box, &QCheckBox::toggled, this,
                [this, key = row.key](bool on) { engine_.data().Set(key, on ? 1 : 0); });
        rows->addWidget(box);
    }
    return frame;
}

QWidget* CustomizeDialog::MakeRange() {
    auto* frame = new QGroupBox(tr("Random Range"));
    auto* rows = new QVBoxLayout(frame);
    imcRange_ = new QComboBox;
    auto* label = new QLabel(tr("Random Range Selection between 0 and "));
    label->setBuddy(imcRange_);
    imcRange_->setAccessibleName(label->text());
    for (std::int16_t index = 1; index <= 15; ++index) {
        imcRange_->addItem(Localized(PhraseWord(HighestNumber(index))));
    }
    const int last = imcRange_->count() - 1;
    imcRange_->setCurrentIndex(std::clamp(engine_.data().Get(keys::RangeIndex) - 1, 0, last));
    connect(imcRange_, &QComboBox::activated, this, [this](int index) {
        engine_.data().Set(keys::RangeIndex, static_cast<std::int16_t>(index + 1));
    });
    rows->addWidget(label);
    rows->addWidget(imcRange_);
    return frame;
}

QWidget* CustomizeDialog::MakeRecent() {
    auto* frame = new QGroupBox(tr("Recent List"));
    auto* row = new QHBoxLayout(frame);
    cmdClearRecent_ = new QPushButton(tr("Clear"));
    cmdClearRecent_->setAutoDefault(false);
    cmdClearRecent_->setEnabled(engine_.data().RecentCount() > 0);
    connect(cmdClearRecent_, &QPushButton::clicked, this, &CustomizeDialog::ClearRecent);
    row->addWidget(new QLabel(tr("Clear  Recent Games List")));
    row->addStretch();
    row->addWidget(cmdClearRecent_);
    return frame;
}

QWidget* CustomizeDialog::MakeStatistics() {
    auto* frame = new QGroupBox(tr("Game Statistics"));
    auto* row = new QHBoxLayout(frame);
    auto* exportStat = new QPushButton(tr("Export Statistics"));
    exportStat->setAutoDefault(false);
    connect(exportStat, &QPushButton::clicked, this, [this] { ExportScores(engine_, this); });
    auto* clearStat = new QPushButton(tr("Clear Statistics"));
    clearStat->setAutoDefault(false);
    connect(clearStat, &QPushButton::clicked, this, [this] {
        if (AskYesNo(this, kClearStatQuestion)) engine_.results().ClearStat();
    });
    row->addWidget(exportStat);
    row->addWidget(clearStat);
    return frame;
}

QWidget* CustomizeDialog::MakeGeneral() {
    auto* page = new QWidget;
    auto* all = new QVBoxLayout(page);
    all->addWidget(MakeCounters());
    all->addWidget(MakeRange());
    all->addWidget(MakeRecent());
    all->addWidget(MakeStatistics());
    all->addStretch();
    return page;
}

QWidget* CustomizeDialog::MakeAnimationAndSounds() {
    auto* page = new QWidget;
    auto* all = new QGridLayout(page);
    for (std::size_t i = 0; i < kSpeeds.size(); ++i) {
        auto* frame = new QGroupBox(tr(kSpeeds[i].caption));
        auto* slider = new QSlider(Qt::Horizontal);
        slider->setRange(0, kSlowest);
        slider->setSingleStep(1);
        slider->setPageStep(5);
        slider->setValue(PositionOf(engine_.data(), kSpeeds[i].key));
        slider->setAccessibleName(frame->title());
        sliders_[i] = slider;
        auto* inside = new QVBoxLayout(frame);
        inside->addWidget(slider);
        auto* ends = new QHBoxLayout;
        ends->addWidget(new QLabel(tr("Slow")));
        ends->addStretch();
        ends->addWidget(new QLabel(tr("Fast")));
        inside->addLayout(ends);
        all->addWidget(frame, static_cast<int>(i), 0);
    }
    FillSounds();
    auto* right = new QVBoxLayout;
    auto* header = new QLabel(tr("Select Sound"));
    header->setBuddy(lvSound_);
    right->addWidget(header);
    right->addWidget(lvSound_);
    all->addLayout(right, 0, 1, static_cast<int>(kSpeeds.size()), 1);
    all->setColumnStretch(0, 1);
    all->setColumnStretch(1, 1);
    return page;
}

void CustomizeDialog::FillSounds() {
    lvSound_->setAccessibleName(tr("Select Sound"));
    for (const SoundRow& row : kSounds) {
        auto* item = new QListWidgetItem(Localized(row.Caption), lvSound_);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(engine_.data().SoundOn(row.Event) ? Qt::Checked : Qt::Unchecked);
    }
    connect(lvSound_, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) {
        if (item->checkState() != Qt::Checked) return;
        engine_.data().TrySound(static_cast<Sound>(lvSound_->row(item)));
    });
}

}  // namespace varnello
