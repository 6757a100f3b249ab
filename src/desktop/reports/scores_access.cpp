#include "desktop/reports/scores_access.h"

#include <QCoreApplication>
#include <memory>

#include "desktop/platform/questions.h"
#include "desktop/platform/watched_work.h"

namespace varnello {

namespace {

struct Work {
    Q_DECLARE_TR_FUNCTIONS(Scores)
};

/// Nothing when a person has stopped it.
std::optional<LoadedScores> Load(const std::vector<ScoreFile>& files, QWidget* parent) {
    const auto loaded = std::make_shared<LoadedScores>();
    const bool done =
        DoWatched(parent, Work::tr("Reading the results..."), BytesOf(files),
                  [files, loaded](Progress& progress) { *loaded = LoadScores(files, progress); });
    return done ? std::optional{std::move(*loaded)} : std::nullopt;
}

}  // namespace

bool OpenScores(Engine& engine, QWidget* parent) {
    auto loaded = Load(engine.score().Files(), parent);
    if (loaded) engine.results().OpenScores(std::move(*loaded));
    return loaded.has_value();
}

OwnWins LoadOwnWins(Engine& engine, QWidget* parent) {
    const ScoreRecord game = engine.score().CurrentGame(Outcome::Won);
    const auto loaded = Load({{ScorePath(engine.data(), game.Player), game.Player}}, parent);
    return loaded ? OwnWinsOf(loaded->List, game) : OwnWins{};
}

void ExportScores(Engine& engine, QWidget* parent) {
    const auto file = AskForReportFile(parent);
    if (!file) return;
    const auto report = std::make_shared<StatExport>(engine.results().PrepareExport(*file));
    const auto written = std::make_shared<bool>(false);
    const bool done =
        DoWatched(parent, Work::tr("Writing the results..."), report->Whole(),
                  [report, written](Progress& progress) { *written = report->Run(progress); });
    if (done && *written) engine.results().TellExport(*file, *report);
}

}  // namespace varnello
