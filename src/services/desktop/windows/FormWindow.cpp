#include "services/desktop/windows/FormWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLayout>
#include <QStyle>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "services/Buttons.h"
#include "services/Dialogs.h"
#include "services/Platform.h"
#include "services/desktop/system/Icons.h"
#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/WindowShape.h"

namespace tagsmith {
namespace {

QWidget* VisibleWindowOf(const Form* form) {
  auto* view = form != nullptr ? static_cast<FormWindow*>(form->View()) : nullptr;
  return view != nullptr && view->Window().isVisible() ? &view->Window() : nullptr;
}

bool AnyFormIsOnScreen() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->isVisible() && dynamic_cast<const FormWidget*>(window) != nullptr;
  });
}

}  // namespace

FormWindow::FormWindow(Form& form)
    : form_(form),
      scale_(TwipsScale::ForFont(QApplication::font())),
      window_(new FormWidget(Events())) {
  window_->setWindowFlags(FlagsFor(form, /*modal=*/false));
  window_->setObjectName(ToQString(form.Name()));
  window_->setWindowTitle(ToQString(form.Caption()));
  window_->setWindowIcon(ApplicationIcon());
  afterEvent_.setSingleShot(true);
  connect(&afterEvent_, &QTimer::timeout, this, [this] { FinishEvent(); });
  ShowPointer(form.MousePointer());
  MakeMenus();
  MakeViews();
}

FormWindow::~FormWindow() {
  ShowPointer(kDefaultPointer);
  window_->Forget();
  views_.clear();
  menus_.clear();
  window_->hide();
  window_->deleteLater();
}

WindowEvents FormWindow::Events() {
  return {
      .activated = [this] { Act([this] { form_.UserActivate(); }); },
      .minimized = [this](bool minimized) { form_.UserMinimize(minimized); },
      .closeWanted = [this] { Act([this] { form_.UserClose(); }); },
      .escapePressed =
          [this] {
            if (form_.Border() == BorderStyle::kSizable && modalLoop_ == nullptr) return;
            Act([this] { form_.UserClose(); });
          },
      .enterPressed =
          [this] {
            CommandButton* button = form_.DefaultButton();
            if (button != nullptr && form_.IsVisible()) Act([button] { button->Click(); });
          },
      .clientResized = [this](QSize size) { ClientResized(size); },
  };
}

// --- The user's actions ---

void FormWindow::Act(const std::function<void()>& action) {
  const FormPool::Busy busy(form_.GetPlatform().forms);
  ++acting_;
  try {
    action();
  } catch (const std::exception& error) {
    form_.GetPlatform().dialogs.MsgBox(form_, error.what(), kOkOnly, kApplicationTitle);
  }
  if (--acting_ == 0 && focused_) afterEvent_.start();
}

void FormWindow::UserFocused(WidgetView& view) {
  focused_ = &view;
  afterEvent_.start();
}

void FormWindow::FinishEvent() {
  if (std::exchange(controlsChanged_, false)) SyncViews();
  if (!minimum_.isNull()) {
    window_->setMinimumSize(window_->SizeFor(minimum_).boundedTo(RoomFor(*window_)));
  }
  DeliverFocus();
}

void FormWindow::DeliverFocus() {
  if (acting_ > 0 || !focused_) return;  // Act comes back to it when the event is done.
  WidgetView* view = std::exchange(focused_, nullptr);
  const QWidget* holder = window_->focusWidget();
  QWidget* target = view->FocusTarget();
  if (holder == nullptr || (holder != target && !target->isAncestorOf(holder))) return;
  Act([view] { view->Model().UserFocus(); });
}

void FormWindow::DropFocus() { window_->Client().setFocus(Qt::OtherFocusReason); }

// --- On and off the screen ---

void FormWindow::PutOnScreen(const QWidget* above) {
  if (!shown_) {
    HasLayout() ? FitToArrangement() : FitToModel();
    window_->layout()->activate();
    PlaceViews();
    form_.IsOnTop() ? PutIntoCorner(*window_) : Centre(*window_, above);
    shown_ = true;
  }
  if (!window_->isVisible()) GiveInitialFocus();
  const bool isSplash = form_.Border() == BorderStyle::kNone;
  window_->setAttribute(Qt::WA_ShowWithoutActivating, isSplash);
  window_->isMinimized() ? window_->showNormal() : window_->show();
  window_->raise();
  if (!isSplash) window_->activateWindow();
}

// The window gives the keyboard to it once it is active. The model is not told: the user has not
// moved the focus.
void FormWindow::GiveInitialFocus() {
  const Control* control = form_.InitialFocus();
  if (control == nullptr || !control->Enabled() || !control->Visible()) return;
  const auto* view = static_cast<WidgetView*>(control->View());
  if (view == nullptr) return;
  form_.ClearFocus();
  view->FocusTarget()->setFocus(Qt::OtherFocusReason);
}

void FormWindow::Show() { PutOnScreen(nullptr); }

void FormWindow::RunModal(Form* owner) {
  QWidget* above = VisibleWindowOf(owner);
  if (above == nullptr || above == window_) above = QApplication::activeWindow();
  if (above == window_) above = nullptr;
  if (!window_->isVisible()) window_->setWindowFlags(FlagsFor(form_, /*modal=*/true));
  window_->setWindowModality(Qt::ApplicationModal);
  window_->winId();
  window_->windowHandle()->setTransientParent(above != nullptr ? above->windowHandle() : nullptr);
  modalLoop_ = std::make_unique<QEventLoop>();
  PutOnScreen(above);
  if (window_->isVisible()) modalLoop_->exec();
  modalLoop_.reset();
  window_->setWindowModality(Qt::NonModal);
}

void FormWindow::Close() {
  window_->hide();
  if (modalLoop_) modalLoop_->quit();
  if (!AnyFormIsOnScreen()) QCoreApplication::quit();  // Nothing unless `exec` is running.
}

void FormWindow::BringToFront() {
  window_->raise();
  window_->activateWindow();
}

void FormWindow::RepaintNow() {
  constexpr int kPatience = 250;  // Milliseconds for the desktop to put the window up.
  QElapsedTimer clock;
  clock.start();
  const auto isUp = [this] {
    return window_->windowHandle() != nullptr && window_->windowHandle()->isExposed();
  };
  // Once it has been up it may be covered or on another desktop: that is not waited for.
  while (!wasUp_ && window_->isVisible() && !isUp() && clock.elapsed() < kPatience) {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  wasUp_ = wasUp_ || isUp();
  window_->repaint();
}

void FormWindow::Changed(Property property) {
  switch (property) {
    case Property::kCaption:
      window_->setWindowTitle(ToQString(form_.Caption()));
      break;
    case Property::kMousePointer:
      ShowPointer(form_.MousePointer());
      break;
    case Property::kOnTop:
      SetStaysOnTop(*window_, form_.IsOnTop());
      break;
    case Property::kGeometry:
      if (!HasLayout() && !resizing_) FitToModel();
      break;
    default:
      break;
  }
}

void FormWindow::ShowPointer(int pointer) {
  const bool hourglass = pointer == kHourglass;
  if (hourglass == std::exchange(hourglass_, hourglass)) return;
  hourglass ? QApplication::setOverrideCursor(Qt::WaitCursor)
            : QApplication::restoreOverrideCursor();
}

// --- Size ---

// What the title needs beside the title bar's buttons.
int FormWindow::TitleWidth() const {
  constexpr int kLettersOfButtons = 12;
  const QFontMetrics metrics = window_->fontMetrics();
  return metrics.horizontalAdvance(window_->windowTitle()) +
         kLettersOfButtons * metrics.averageCharWidth();
}

QSize FormWindow::ModelClientSize() const {
  return scale_.ToPixels(form_.ScaleWidth(), form_.ScaleHeight());
}

void FormWindow::FitToArrangement() {
  QSize wanted = window_->Client().layout()->totalSizeHint();
  wanted.setWidth(std::max({wanted.width(), window_->MenuWidth(), TitleWidth()}));
  const QSize room = RoomFor(*window_);
  if (window_->SizeFor(wanted).boundedTo(room) != window_->SizeFor(wanted)) {
    window_->MakeScrollable();
    window_->Client().setMinimumSize(wanted);
    const int bar = window_->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    wanted += QSize(bar, bar);
  }
  window_->setFixedSize(window_->SizeFor(wanted).boundedTo(room));
}

void FormWindow::FitToModel() {
  if (window_->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) return;
  const QSize size = window_->SizeFor(ModelClientSize()).boundedTo(RoomFor(*window_));
  const bool isFixed = form_.Border() != BorderStyle::kSizable;
  isFixed ? window_->setFixedSize(size) : window_->resize(size);
}

void FormWindow::ClientResized(QSize size) {
  Act([this, size] {
    if (size != ModelClientSize() && !window_->isMinimized()) {
      resizing_ = true;
      form_.UserResize(scale_.ToTwips(size.width()) + kFormExtraWidth,
                       scale_.ToTwips(size.height()) + kFormExtraHeight);
      resizing_ = false;
      if (!HasLayout()) AnswerModel(size);
    }
    PlaceViews();
  });
}

// The form may have taken another size than the one it was given. The window follows once; when the
// window manager does not let it, the form keeps its size and is cut.
void FormWindow::AnswerModel(QSize given) {
  if (window_->windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) return;
  const QSize wanted = ModelClientSize().boundedTo(RoomFor(*window_));
  const QSize least(wanted.width() > given.width() ? wanted.width() : 0,
                    wanted.height() > given.height() ? wanted.height() : 0);
  const QSize minimum = minimum_.expandedTo(least);
  if (minimum == minimum_) return;
  minimum_ = minimum;
  afterEvent_.start();
}

void FormWindow::PlaceViews() {
  if (statusBar_ != nullptr) statusBar_->Place();  // It takes its part of the area first.
  for (std::size_t i = 0; i < views_.size(); ++i) views_[i]->Place();
}

}  // namespace tagsmith
