#pragma once

#include <memory>

#include "engine/board/board.h"
#include "engine/movelog/log.h"
#include "engine/settings/data.h"

namespace varnello {

/// What the rules work on: the objects of the game on the table. `trans` is replaced by each new
/// game; code that may outlive a game holds its own pointer to the log it began with.
struct Playfield {
    cData& data;
    cGames& games;
    Generator& generator;
    Table& table;
    cArray& array;
    std::shared_ptr<cTrans>& trans;
};

/// Holds the bracket of one undo step open. Its end never reaches another game's log.
class MultiStep {
public:
    explicit MultiStep(const Playfield& field) : log_(field.trans) { log_->StartMulti(); }
    ~MultiStep() { log_->EndMulti(); }
    MultiStep(const MultiStep&) = delete;
    MultiStep& operator=(const MultiStep&) = delete;

private:
    std::shared_ptr<cTrans> log_;
};

}  // namespace varnello
