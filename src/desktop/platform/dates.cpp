#include "desktop/platform/dates.h"

#include <QDate>
#include <QLocale>
#include <QTime>

namespace varnello {
namespace {

QDate DateOf(const DateTime& moment) { return {moment.year, moment.month, moment.day}; }

/// The locale's time with seconds and without the time zone that its long form ends with.
QString TimeText(const DateTime& moment) {
    QString format = QLocale().timeFormat(QLocale::LongFormat);
    format.remove(QStringLiteral("tttt")).remove(QLatin1Char('t'));
    return QLocale().toString(QTime(moment.hour, moment.minute, moment.second), format.trimmed());
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
