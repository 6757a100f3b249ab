#pragma once

#include "engine/board/board.h"
#include "engine/movelog/log.h"
#include "engine/settings/data.h"

namespace varnello {

/// What the rules work on: the objects of the game on the table.
struct Playfield {
    cData& data;
    cGames& games;
    Generator& generator;
    Table& table;
    cArray& array;
    cTrans& trans;
};

/// Holds the bracket of one undo step open.
class MultiStep {
public:
    explicit MultiStep(const Playfield& field) : log_(field.trans) { log_.StartMulti(); }
    ~MultiStep() { log_.EndMulti(); }
    MultiStep(const MultiStep&) = delete;
    MultiStep& operator=(const MultiStep&) = delete;

private:
    cTrans& log_;
};

}  // namespace varnello
