#include "services/host/HostCalendar.h"

#include <QDate>
#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>
#include <QString>
#include <QTime>
#include <utility>

namespace tagsmith {
namespace {

QLocale LocaleOf(const std::string& name) {
  return name.empty() ? QLocale::system() : QLocale(QString::fromStdString(name));
}

QDate DateOf(const LocalTime& time) { return {time.year, time.month, time.day}; }

// A time format less its fields "t" (the time zone) and what surrounds them: "HH:mm:ss (t)".
QString WithoutTimeZone(const QString& format) {
  QString rest;
  bool quoted = false;
  for (const QChar c : format) {
    if (c == u'\'') quoted = !quoted;
    if (quoted || c != u't') rest += c;
  }
  const QRegularExpression leftOver("\\(\\)|\\[\\]|^[ ,]+|[ ,]+$");
  return rest.remove(leftOver).trimmed();
}

}  // namespace

HostCalendar::HostCalendar(std::string localeName) : localeName_(std::move(localeName)) {}

LocalTime HostCalendar::Now() const {
  const QDateTime now = QDateTime::currentDateTime();
  const QDate date = now.date();
  const QTime time = now.time();
  return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

std::string HostCalendar::LongDate(const LocalTime& time) const {
  return LocaleOf(localeName_).toString(DateOf(time), QLocale::LongFormat).toStdString();
}

std::string HostCalendar::MediumDate(const LocalTime& time) const {
  return LocaleOf(localeName_).toString(DateOf(time), u"dd-MMM-yy").toStdString();
}

std::string HostCalendar::ShortDate(const LocalTime& time) const {
  return LocaleOf(localeName_).toString(DateOf(time), QLocale::ShortFormat).toStdString();
}

std::string HostCalendar::GeneralDate(const LocalTime& time) const {
  const QLocale locale = LocaleOf(localeName_);
  const QString format = WithoutTimeZone(locale.timeFormat(QLocale::LongFormat));
  const QTime clock(time.hour, time.minute, time.second);
  return ShortDate(time) + ' ' + locale.toString(clock, format).toStdString();
}

}  // namespace tagsmith
