#pragma once

#include <cstdint>

#include "engine/rules/playfield.h"

namespace varnello {

/// Play by hand: press on a card, drag it, let go. Any button, no threshold. All positions are
/// twips, those of the mouse relative to the card, which moves along with it.
class Gestures {
public:
    explicit Gestures(const Playfield& field) : field_(field) {}

    void MouseDown(PicID id, double x, double y);
    void MouseMove(PicID id, double x, double y);
    void MouseUp(PicID id);
    /// The release can't come any more: the cards go back.
    void PutBack(PicID id);
    /// A click on the stock's slot.
    void StockClick();

    bool Dragging() const { return dragging_; }
    /// A drag ends with its game.
    void Reset();

    // The grip point inside the card at the press.
    std::int16_t DownX() const { return downX_; }
    std::int16_t DownY() const { return downY_; }

private:
    void CardDown(PicID id);
    void CardDrag(PicID id, double x, double y);
    void EndDrag(PicID id, void (Gestures::*end)(PicID));
    void CardDrop(PicID id);
    void CardBack(PicID id);

    /// Whether the cards in the hand still lie on the board as they did at the press. An undo or a
    /// replay step may have moved them, or others onto them, while the button was down.
    bool StillHeld(PicID id) const;
    /// Puts what the board holds from this card up where it belongs.
    void Settle(PicID id);
    void PickUpStack(PicID id);
    void PressStockCard(PicID id);
    bool IsTopCard(PicID id) const;
    void PutAt(PicID id, double left, double top, bool bringToFront);
    void MoveCarried(PicID id, int left, int top, bool bringToFront);
    bool HitCard(PicID id, const Place& place, bool wide) const;
    bool DropOnTableau(PicID id, bool wide);
    bool DropOnReserve(PicID id, bool wide);
    bool DropOnFoundation(PicID id, bool wide);

    Playfield field_;
    std::int16_t downX_ = 0;
    std::int16_t downY_ = 0;
    std::int16_t startLeft_ = 0;
    std::int16_t startTop_ = 0;
    Place heldAt_;       ///< the card's place at the press
    int dragCount_ = 0;  ///< cards carried above the one taken
    bool dragging_ = false;
};

}  // namespace varnello
