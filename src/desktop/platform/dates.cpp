#include "desktop/platform/dates.h"

#include <QCoreApplication>
#include <QDate>
#include <QLocale>
#include <QRegularExpression>
#include <QTime>

#include "desktop/platform/text.h"
#include "desktop/platform/words.h"
#include "engine/common/number_text.h"

namespace varnello {
namespace {

struct Forms {
    Q_DECLARE_TR_FUNCTIONS(Dates)
};

QString MonthName(int month) { return QLocale().standaloneMonthName(month, QLocale::ShortFormat); }

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

std::string LocaleDates::DayOfYear(const DateTime& moment) const {
    return Forms::tr("%1 %2", "a month's short name, a day")
        .arg(MonthName(moment.month), InDigits(ToQt(TwoDigits(moment.day))))
        .toStdString();
}

std::string LocaleDates::MonthOfYear(const DateTime& moment) const {
    return Forms::tr("%1 %2", "a month's short name, the last two digits of a year")
        .arg(MonthName(moment.month), InDigits(ToQt(TwoDigits(moment.year % 100))))
        .toStdString();
}

std::string LocaleDates::Year(const DateTime& moment) const {
    return AsFigure(moment.year).toStdString();
}

}  // namespace varnello
