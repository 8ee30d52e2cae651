#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QWidget>
#include <string_view>

#include "services/Control.h"
#include "services/WindowSystem.h"
#include "services/desktop/windows/ViewHost.h"

namespace tagsmith {

/// A control on the screen: keeps one widget as the control's properties say, and turns what the
/// user does with it into the control's user actions. It may be destroyed inside a signal of its
/// widget, which belongs to the window and outlives it.
class WidgetView : public QObject, public ControlView {
 public:
  WidgetView(Control& control, ViewHost& host);

  Control& Model() const { return control_; }
  QWidget* Widget() const { return widget_; }
  /// The part of the widget that takes the keyboard.
  QWidget* FocusTarget() const { return focusTarget_; }
  /// The widget on which the controls stand that the control contains, on its page `page`.
  virtual QWidget* ChildParent(int page);

  /// From now on the widget stands where the control's bounds say, not where a layout puts it, and
  /// has no size of its own.
  void StandByBounds();
  /// Applies the bounds, cut to the area that the container shows.
  void Place();

  void Changed(Property property) final;
  bool eventFilter(QObject* watched, QEvent* event) override;
  /// Where the widget would stand, in pixels, if nothing cut it.
  virtual QRect WantedPlace() const;

 protected:
  ViewHost& Host() const { return host_; }
  /// Whether a layout places the widget. Known before it is in its place.
  bool StandsInLayout() const;

  /// Takes the widget that the constructor has made and gives it what all controls have.
  /// `focusTarget` is the part that takes the keyboard, null for the widget itself.
  void Adopt(QWidget* widget, QWidget* focusTarget = nullptr);
  /// Shows a property that is the kind's own.
  virtual void Update(Property property);
  /// In a layout: the bounds have changed.
  virtual void Resized() {}
  /// What a screen reader calls the control; empty to leave it to the widget.
  virtual QString AccessibleName() const { return {}; }

  void UpdateAccessibleName() const;

 private:
  void UpdateColours() const;
  void UpdateFont() const;
  void UpdateToolTip() const;

  Control& control_;
  ViewHost& host_;
  QPointer<QWidget> widget_;
  QPointer<QWidget> focusTarget_;
  bool byBounds_ = false;
};

/// As `WidgetView`, knowing the kind of its control.
template <class T>
class ViewOf : public WidgetView {
 public:
  ViewOf(T& control, ViewHost& host) : WidgetView(control, host), model_(control) {}

 protected:
  T& model_;  // NOLINT(misc-non-private-member-variables-in-classes)
};

/// The widget's name: the control's, with "_<index>" behind it in a control array.
QString ObjectNameOf(const Control& control);

/// A tool tip is plain text, whatever tags it shows: what to give Qt so that it stays so.
QString PlainToolTip(const QString& text);

/// A caption without its access key mark: what it says.
QString WithoutMnemonic(std::string_view caption);
/// A text in which every ampersand is meant, for a widget that takes them for access key marks.
QString WithoutAccessKey(std::string_view text);

}  // namespace tagsmith
