#include "desktop/help/pages.h"

#include <QCoreApplication>
#include <QFile>
#include <algorithm>

#include "desktop/platform/text.h"
#include "desktop/platform/words.h"
#include "engine/definitions/catalogue.h"
#include "engine/definitions/describe.h"

namespace varnello {
namespace {

struct Pages {
    Q_DECLARE_TR_FUNCTIONS(Pages)
};

const QString kGamePrefix = QStringLiteral("game:");

/// In the user's language if there is such a page.
QString Prose(const QString& file) {
    QFile page(QStringLiteral(":/help/%1/%2.html").arg(Language(), file));
    if (!page.exists()) page.setFileName(QStringLiteral(":/help/%1.html").arg(file));
    return page.open(QIODevice::ReadOnly) ? QString::fromUtf8(page.readAll()) : QString();
}

/// The file name of a game's prose: "Baker's Game" stands in bakers-game.html.
QString FileOf(std::string_view game) {
    return QStringLiteral("games/") + ToQt(game).toLower().remove('\'').replace(' ', '-');
}

QString Facts(const GameRow& row) {
    QString html = QStringLiteral("<table cellpadding='4'>");
    for (const GameFact& fact : Describe(row)) {
        QStringList sentences;
        for (const Phrase& sentence : fact.Sentences) sentences << Localized(sentence);
        html += QStringLiteral("<tr><td><b>%1</b></td><td>%2</td></tr>")
                    .arg(Localized(fact.Heading).toHtmlEscaped().replace(' ', "&nbsp;"),
                         sentences.join(' ').toHtmlEscaped());
    }
    return html + QStringLiteral("</table>");
}

/// The prose of a game with its rules before the hints.
QString GamePage(const GameRow& row) {
    QString html = Prose(FileOf(row.Name));
    const qsizetype hints = html.indexOf(QStringLiteral("<h2>"));
    html.insert(
        std::max<qsizetype>(hints, 0),
        QStringLiteral("<h2>%1</h2>%2").arg(Pages::tr("Rules").toHtmlEscaped(), Facts(row)));
    return QStringLiteral("<p><img src=\"preview:%1\"></p>").arg(ToQt(row.Name)) + html;
}

/// The other pages in a column, and beside it all games with their previews.
QString Contents(int columns) {
    QString grid;
    int place = 0;
    for (const GameRow& row : kCatalogue) {
        if (place % columns == 0) grid += place == 0 ? "<tr>" : "</tr><tr>";
        grid += QStringLiteral(
                    "<td><a href=\"game:%1\"><img src=\"small:%1\"></a><br>"
                    "<a href=\"game:%1\">%1</a></td>")
                    .arg(ToQt(row.Name));
        ++place;
    }
    return QStringLiteral(
               "<table cellspacing='0'><tr><td width='%1' style='padding-right: %3px'>%2</td><td>"
               "<table cellspacing='0' cellpadding='%3'>%4</tr></table></td></tr></table>")
        .arg(QString::number(kContentsColumn), Prose(QStringLiteral("contents")),
             QString::number(kGridGap / 2), grid);
}

}  // namespace

HelpPage PageOf(const QString& name, int columns) {
    if (name == QStringLiteral("contents")) return {Pages::tr("Contents"), Contents(columns)};
    if (name == QStringLiteral("playing")) return {Pages::tr("How to play"), Prose(name)};
    if (name == QStringLiteral("words")) return {Pages::tr("Words of patience"), Prose(name)};
    if (!name.startsWith(kGamePrefix)) return {};
    const QString game = name.mid(kGamePrefix.size());
    const GameRow* row = FindGame(game.toStdString());
    return row ? HelpPage{game, GamePage(*row)} : HelpPage{};
}

QString PageNameOf(int gameId) {
    if (gameId < 1 || gameId > TotalGames()) return QStringLiteral("contents");
    return kGamePrefix + ToQt(kCatalogue[static_cast<std::size_t>(gameId - 1)].Name);
}

}  // namespace varnello
