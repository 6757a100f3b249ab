#pragma once

#include <cstdint>
#include <optional>

#include "engine/rules/playfield.h"

namespace varnello {

/// What a press on a card does.
enum class Grip {
    None,
    Lift,  ///< it can be taken up, with what lies on it
    Deal   ///< the stock deals or turns it
};

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
    /// Cards carried above the one taken.
    int Carried() const { return DragCount_; }
    /// What a press would do now.
    Grip GripOf(PicID id) const;
    /// Whether a click on the stock's slot would turn the waste back.
    bool RedealPossible() const;
    /// Where the cards in the hand would lie if they were let go now; nothing when they would go
    /// back.
    std::optional<Place> Target(PicID id) const;
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
    int CardsAbove(PicID id) const;
    bool CanLiftStack(PicID id) const;
    void LiftStack(PicID id);
    void PressStockCard(PicID id);
    bool IsTopCard(PicID id) const;
    void PutAt(PicID id, double left, double top, bool bringToFront);
    void MoveCarried(PicID id, int left, int top, bool bringToFront);
    bool HitCard(PicID id, const Place& place, bool wide) const;
    std::optional<Place> TargetOnTableau(PicID id, bool wide) const;
    std::optional<Place> TargetOnReserve(PicID id, bool wide) const;
    std::optional<Place> TargetOnFoundation(PicID id, bool wide) const;

    Playfield field_;
    std::int16_t downX_ = 0;
    std::int16_t downY_ = 0;
    std::int16_t startLeft_ = 0;
    std::int16_t startTop_ = 0;
    Place heldAt_;       ///< the card's place at the press
    int DragCount_ = 0;  ///< cards carried above the one taken
    bool dragging_ = false;
};

}  // namespace varnello
