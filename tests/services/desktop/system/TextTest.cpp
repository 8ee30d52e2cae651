#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <string>

#include "services/desktop/system/QtClipboard.h"
#include "services/desktop/system/QtEventQueue.h"
#include "services/desktop/system/TextConversion.h"

namespace tagsmith {
namespace {

using namespace std::string_literals;

TEST(Text, ComesBackByteForByteFromQtAndFromTheClipboard) {
  QtClipboard clipboard;
  for (const std::string& text : {
           "\xEF\xBB\xBF\xEF\xBB\xBF<HTML>"s,  // two byte order marks
           "a\0b\0one\r\ntwo\nthree\rfour\r\n"s,
           "\xC2\xA0\xE2\x80\xA8\xC3\xA9"s,   // no-break space, line separator, e with acute
           "\xF0\x9F\x98\x80\xEF\xBF\xBE\0"s  // outside the first plane; a non-character; NUL
       }) {
    EXPECT_EQ(FromQString(ToQString(text)), text);
    clipboard.SetText(text);
    EXPECT_EQ(clipboard.GetText(), text);
  }
  clipboard.Clear();
  EXPECT_EQ(clipboard.GetText(), "");
}

// Answers its event with another one and has that handled at once.
class Restless final : public QObject {
 public:
  int handled = 0;

  bool event(QEvent* /*event*/) override {
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    if (++handled < 10000) events_.DoEvents();
    return true;
  }

 private:
  QtEventQueue events_;
};

TEST(EventQueue, SurvivesEndlessReentry) {
  Restless restless;
  QCoreApplication::postEvent(&restless, new QEvent(QEvent::User));
  QtEventQueue().DoEvents();
  EXPECT_GT(restless.handled, 1);
  EXPECT_LT(restless.handled, 1000);
}

}  // namespace
}  // namespace tagsmith
