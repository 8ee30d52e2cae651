#pragma once

#include <string>

namespace tagsmith {

/// A moment in local time.
struct LocalTime {
  int year = 1970;
  int month = 1;  ///< 1 to 12
  int day = 1;    ///< 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;
};

/// The clock and the user's own forms of date and time, in UTF-8.
class Calendar {
 public:
  virtual ~Calendar() = default;

  virtual LocalTime Now() const = 0;

  virtual std::string LongDate(const LocalTime& time) const = 0;
  virtual std::string MediumDate(const LocalTime& time) const = 0;
  virtual std::string ShortDate(const LocalTime& time) const = 0;
  /// Date and time.
  virtual std::string GeneralDate(const LocalTime& time) const = 0;
};

}  // namespace tagsmith
