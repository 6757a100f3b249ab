#include "script/looking.h"

#include <utility>

#include "engine/common/rounding.h"
#include "engine/common/text_file.h"
#include "engine/movelog/history.h"

namespace varnello::script {
namespace {

template <typename Enum>
int Code(Enum value) {
    return static_cast<int>(value);
}

std::ostream& operator<<(std::ostream& out, const Place& place) {
    return out << Code(place.Cell) << ',' << place.Pile << ',' << place.Pos;
}

void PrintCard(std::ostream& out, PicID id, const KesCard& card) {
    out << ' ' << id << '/' << card.Suit << '/' << card.Num << '/' << card.Suitpile << '/'
        << Code(card.FaceMode) << '@' << RoundTo16(card.Left) << ',' << RoundTo16(card.Top);
}

void PrintPiles(std::ostream& out, const Engine& engine) {
    const cArray& array = engine.array();
    for (int c = 0; c < kCells; ++c) {
        const auto cell = static_cast<Cell>(c);
        for (int pile = 0; pile < kPilesPerCell; ++pile) {
            const int top = array.GetTop(cell, pile);
            if (top < 0) continue;
            out << c << ' ' << pile << ':';
            for (int pos = 0; pos <= top; ++pos) {
                const PicID id = array.GetPicID(cell, pile, pos);
                PrintCard(out, id, engine.table().Card(id));
            }
            out << '\n';
        }
    }
}

}  // namespace

void PrintBoard(std::ostream& out, const Engine& engine) {
    out << "game: " << engine.data().CurGName() << '|' << engine.data().CurGNo.Shown() << '|'
        << engine.data().GameRunning << '\n';
    if (engine.data().GameRunning) {
        PrintPiles(out, engine);
        ForEachSlot(engine.table(), [&](const char* name, int index, const KesEmpty& slot) {
            if (!slot.Visible) return;
            out << "slot " << name << ' ' << index << ": " << slot.Picture << " @" << slot.Left
                << ',' << slot.Top << '\n';
        });
    }
    out << "front:";
    for (const PicID id : engine.table().VisibleCards()) out << ' ' << id;
    out << '\n';
}

void PrintLog(std::ostream& out, const Engine& engine) {
    const cTrans& log = engine.trans();
    out << "log: " << log.GetTransID() << ' ' << log.TransTop() << '\n';
    for (int i = 1; i <= log.TransTop(); ++i) {
        const TransRec& record = log.Record(static_cast<std::int16_t>(i));
        out << i << ": " << record.PicID << ' ' << record.From() << ' ' << record.To() << ' '
            << record.mCards << ' ' << Code(record.MoveKind) << ' ' << record.InGroup << '\n';
    }
}

void PrintState(std::ostream& out, const Engine& engine) {
    const cData& data = engine.data();
    out << "state: " << data.GameRunning << '|' << data.CurGName() << '|' << data.CurGNo.Shown()
        << '|' << data.CurPlayer() << '|' << data.CurTime << '|' << data.CurMoves << '|'
        << data.CurScore << '|' << engine.trans().GetTransID() << '|'
        << engine.counters().CalcScore() << '|' << engine.counters().ElapsedTime() << '\n';
}

void PrintMarks(std::ostream& out, const Engine& engine) {
    const MenuMarks marks = engine.commands().UpdateMenus();
    out << "marks: mFile4=" << marks.Restart << " mFile5=" << marks.Close
        << " mFav1=" << marks.AddFavorite << " mTools5=" << marks.History
        << " mGame1=" << marks.Undo << " mGame2=" << marks.Redo << " mGame6=" << marks.UndoAll
        << " mGame7=" << marks.RedoAll << " mReplay1=" << marks.Forward
        << " mReplay2=" << marks.Back << " mReplay4=" << marks.ReplayAll
        << " mReplay6=" << marks.Stop << " mGame4=" << marks.Autoplay << '/'
        << marks.AutoplayChecked << " mGame9=1/" << marks.ToolbarChecked << '\n';
}

void PrintRecent(std::ostream& out, const Engine& engine) {
    out << "recent: ";
    for (std::int16_t i = 1; i <= kMaxRecent; ++i) {
        out << (i > 1 ? "|" : "") << engine.data().GetRecent(i);
    }
    out << '\n';
}

void PrintScores(std::ostream& out, const Engine& engine) {
    for (const std::string& line : ReadLines(ScorePath(engine.data(), engine.data().CurPlayer()))) {
        const std::size_t comma = line.find(',');
        out << "scores: -" << (comma == std::string::npos ? "" : line.substr(comma)) << '\n';
    }
}

void PrintPlayers(std::ostream& out, const Engine& engine) {
    const cData& data = engine.data();
    out << "players: ";
    for (std::int16_t slot = 1; slot <= data.TotalPlayers(); ++slot) {
        const std::string name = data.GetPlayer(slot);
        out << (slot > 1 ? "|" : "") << (name == data.CurPlayer() ? "*" : "") << name;
    }
    out << '\n';
}

void PrintHistory(std::ostream& out, const Engine& engine) {
    if (!engine.data().GameRunning) return;
    for (const HistoryRow& row : engine.trans().CreateLV()) {
        out << "history: " << row.Number << '|' << row.Source.English() << '|'
            << row.Destination.English() << '|' << row.Cards;
        if (row.Mark == HistoryMark::Last) out << "|*";
        if (row.Mark == HistoryMark::Undone) out << "|-";
        out << '\n';
    }
}

void PrintFavorites(std::ostream& out, const Favorites& favorites, std::string_view game) {
    out << "favorites: ";
    const char* separator = "";
    for (const std::string& number : favorites.NumbersOf(game)) {
        out << std::exchange(separator, "|") << number;
    }
    out << '\n';
}

void PrintFinish(std::ostream& out, const Engine& engine) {
    const cData& data = engine.data();
    out << "finish: " << data.CurGName() << '|' << data.CurGNo.Shown() << '|' << data.CurPlayer()
        << '|' << FormatTime(data.CurTime) << '|' << data.CurMoves << '|' << data.CurScore << '\n';
}

void PrintMove(std::ostream& out, const CardMove& move) {
    out << "move: " << move.PicID << ' ' << Code(move.To.Cell) << ' ' << move.To.Pile << ' '
        << move.To.Pos << ' ' << Code(move.tMod) << ' ' << move.Speed << ' ' << move.mCards << ' '
        << Code(move.DFace) << '\n';
}

}  // namespace varnello::script
