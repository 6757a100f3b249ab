#pragma once

#include <QFrame>
#include <QImage>
#include <optional>

#include "desktop/appearance/background.h"

namespace varnello {

/// Shows a background, and on it a card's back if it is given one.
class LookPreview : public QFrame {
    Q_OBJECT

public:
    explicit LookPreview(const QString& name);

    void ShowBackground(const BackgroundChoice& choice);
    void ShowDeck(int deckIndex);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    BackgroundChoice choice_;
    std::optional<int> deckIndex_;
    QImage background_;  ///< as it was painted last
};

}  // namespace varnello
