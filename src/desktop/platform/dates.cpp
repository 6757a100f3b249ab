#include "desktop/platform/dates.h"

#include <QDate>
#include <QLocale>
#include <QRegularExpression>
#include <QTime>

namespace varnello {
namespace {

QDate DateOf(const DateTime& moment) { return {moment.year, moment.month, moment.day}; }

/// The locale's form of a time with seconds, without the zone that its long form has somewhere. `B`
/// is a time of day in words, which the toolkit doesn't know; it becomes the half of the day, which
/// is spelt with the locale's own capitals (`Ap`).
QString TimeFormat() {
    static const QRegularExpression zone(QStringLiteral("\\s*,?\\s*[(\\[]?t+[)\\]]?"));
    static const QRegularExpression half(QStringLiteral("AP|B"));
    QStringList parts = QLocale().timeFormat(QLocale::LongFormat).split(QLatin1Char('\''));
    // Every other part stands in quotes: words.
    for (qsizetype i = 0; i < parts.size(); i += 2) {
        parts[i].remove(zone).replace(half, QStringLiteral("Ap"));
    }
    return parts.join(QLatin1Char('\'')).trimmed();
}

QString TimeText(const DateTime& moment) {
    return QLocale().toString(QTime(moment.hour, moment.minute, moment.second), TimeFormat());
}

}  // namespace

std::string LocaleDates::Date(const DateTime& moment) const {
    return QLocale().toString(DateOf(moment), QLocale::ShortFormat).toStdString();
}

std::string LocaleDates::DateAndTime(const DateTime& moment) const {
    return Date(moment) + ' ' + TimeText(moment).toStdString();
}

std::string LocaleDates::Month(int month) const {
    return QLocale().standaloneMonthName(month, QLocale::ShortFormat).toStdString();
}

}  // namespace varnello
