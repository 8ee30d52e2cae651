#pragma once

#include <string>

#include "services/Calendar.h"

namespace tagsmith {

/// The computer's clock, and date forms of the user's locale.
class HostCalendar : public Calendar {
 public:
  /// `localeName` ("de_DE") names another locale than the desktop's own.
  explicit HostCalendar(std::string localeName = {});

  LocalTime Now() const override;
  std::string LongDate(const LocalTime& time) const override;
  /// Day, month's short name and the year's last two digits: "05-Mar-24".
  std::string MediumDate(const LocalTime& time) const override;
  std::string ShortDate(const LocalTime& time) const override;
  /// The short date, a blank and the time with seconds, without a time zone.
  std::string GeneralDate(const LocalTime& time) const override;

 private:
  std::string localeName_;
};

}  // namespace tagsmith
