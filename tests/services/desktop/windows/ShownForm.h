#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <string>
#include <vector>

#include "services/Form.h"
#include "services/Platform.h"
#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/QtWindowSystem.h"
#include "support/ScriptedDesktop.h"

namespace tagsmith {

/// Real windows; all else is scripted.
struct Screen {
  QtWindowSystem windows;
  ScriptedDesktop desktop{&windows};
  Platform& platform = desktop.platform;
};

/// A form on the screen and the log of its events.
class ShownForm : public Form {
 public:
  explicit ShownForm(Screen& screen) : Form(screen.platform, "frmProbe") {}

  std::vector<std::string> log;

  /// A handler that logs `text`.
  std::function<void()> Log(const std::string& text) {
    return [this, text] { log.push_back(text); };
  }

  void ShowAndWait() {
    Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
  }

  QWidget& Window() { return *QtWindowSystem::WindowOf(*this); }

  /// The widget of a control; null if it has none yet.
  template <class T = QWidget>
  T* Widget(const Control& control) {
    QString name = ToQString(control.Name());
    if (control.Index() != Control::kNoIndex) name += "_" + QString::number(control.Index());
    return Window().findChild<T*>(name);
  }

  /// The log since the last call, once all that is queued has happened.
  std::vector<std::string> TakeLog() {
    QCoreApplication::processEvents();
    return std::exchange(log, {});
  }
};

/// A sizable form whose controls, unless they are moved again, stand below each other.
class ProbeForm : public ShownForm {
 public:
  explicit ProbeForm(Screen& screen) : ShownForm(screen) {
    SetBorder(BorderStyle::kSizable);
    SetWidth(10500);
    SetHeight(9000);
  }

 protected:
  void StackControls() {
    Twips top = 0;
    for (Control* control : Controls()) {
      control->Move({0, top, 6000, 500});
      top += 500;
    }
  }
};

/// Tests of a form that has come up.
template <class T>
class ShownTest : public testing::Test {
 protected:
  void SetUp() override {
    form.ShowAndWait();
    form.TakeLog();
  }

  Screen screen;
  T form{screen};
};

using Strings = std::vector<std::string>;

}  // namespace tagsmith
