#include "desktop/help/pages.h"

#include <QFile>

#include "desktop/platform/text.h"
#include "engine/definitions/describe.h"

namespace varnello {
namespace {

const QString kGamePrefix = QStringLiteral("game:");

QString Prose(const QString& file) {
    QFile page(QStringLiteral(":/help/%1.html").arg(file));
    return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

/// The file name of a game's prose: "Baker's Game" stands in bakers-game.html.
QString FileOf(std::string_view game) {
    return QStringLiteral("games/") + ToQt(game).toLower().remove('\'').replace(' ', '-');
}

QString Facts(const GameRow& row) {
    QString html = QStringLiteral("<table cellpadding='4'>");
    for (const GameFact& fact : Describe(row)) {
        html +=
            QStringLiteral("<tr><td><b>%1</b></td><td>%2</td></tr>")
                .arg(ToQt(fact.Heading).replace(' ', "&nbsp;"), ToQt(fact.Text).toHtmlEscaped());
    }
    return html + QStringLiteral("</table>");
}

QString GamePage(const GameRow& row) {
    const QString name = ToQt(row.Name);
    return QStringLiteral("<p><img src=\"preview:%1\"></p>").arg(name) +
           Prose(FileOf(row.Name))
               .replace(QStringLiteral("<h2>Hints</h2>"),
                        QStringLiteral("<h2>Rules</h2>%1<h2>Hints</h2>").arg(Facts(row)));
}

QString Contents() {
    QString html = Prose(QStringLiteral("contents")) + QStringLiteral("<h2>The games</h2><ul>");
    for (const GameRow& row : kCatalogue) {
        html += QStringLiteral("<li><a href=\"game:%1\">%1</a></li>").arg(ToQt(row.Name));
    }
    return html + QStringLiteral("</ul>");
}

}  // namespace

HelpPage PageOf(const QString& name) {
    if (name == QStringLiteral("contents")) return {QStringLiteral("Contents"), Contents()};
    if (name == QStringLiteral("playing")) return {QStringLiteral("How to play"), Prose(name)};
    if (name == QStringLiteral("words")) return {QStringLiteral("Words of patience"), Prose(name)};
    if (!name.startsWith(kGamePrefix)) return {};
    const QString game = name.mid(kGamePrefix.size());
    const GameRow* row = FindGame(game.toStdString());
    return row ? HelpPage{game, GamePage(*row)} : HelpPage{};
}

QString PageNameOf(int gameId) {
    if (gameId < 1 || gameId > kTotalGames) return QStringLiteral("contents");
    return kGamePrefix + ToQt(kCatalogue[static_cast<std::size_t>(gameId - 1)].Name);
}

}  // namespace varnello
