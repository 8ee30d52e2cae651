#include "core/frmDate.h"

#include <array>

#include "core/Application.h"
#include "services/Calendar.h"

namespace tagsmith {
namespace {

// What stands between month, day and year, and how many digits the year has.
struct NumericForm {
  std::string_view separator;
  int yearDigits;
};

constexpr std::array<NumericForm, 6> kNumericForms = {
    {{"/", 2}, {"/", 4}, {"-", 2}, {"-", 4}, {"", 2}, {"", 4}}};

// The last `digits` digits of the number, zeros in front.
std::string Digits(int number, int digits) {
  std::string text(static_cast<std::size_t>(digits), '0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, number /= 10) {
    *digit = static_cast<char>('0' + number % 10);
  }
  return text;
}

std::string NumericDate(const LocalTime& time, const NumericForm& form) {
  return Digits(time.month, 2)
      .append(form.separator)
      .append(Digits(time.day, 2))
      .append(form.separator)
      .append(Digits(time.year, form.yearDigits));
}

}  // namespace

frmDate::frmDate(Application& application)
    : Form(application.platform, "frmDate"), application_(application) {
  SetCaption("Insert Date");
  cmdOK.SetCaption("&OK");
  cmdCancel.SetCaption("&Cancel");
  SetDefaultButton(cmdOK);
  SetArrangement(Column({lstDate, ButtonRow({cmdOK, cmdCancel})}));

  onLoad = [this] { Form_Load(); };
  cmdOK.onClick = [this] { Finish(lstDate.Text()); };
  lstDate.onDblClick = cmdOK.onClick;
  cmdCancel.onClick = [this] { Finish({}); };
}

void frmDate::Form_Load() {
  application_.gDateText.clear();
  const Calendar& calendar = application_.platform.calendar;
  const LocalTime now = calendar.Now();
  lstDate.AddItem(calendar.LongDate(now));
  lstDate.AddItem(calendar.MediumDate(now));
  lstDate.AddItem(calendar.ShortDate(now));
  lstDate.AddItem(calendar.GeneralDate(now));
  for (const NumericForm& form : kNumericForms) lstDate.AddItem(NumericDate(now, form));
  lstDate.SetListIndex(0);
}

void frmDate::Finish(const std::string& dateText) {
  application_.gDateText = dateText;
  Unload();
}

}  // namespace tagsmith
