#pragma once

#include <QStatusBar>
#include <QString>

namespace tagsmith {

/// A status bar with one text, cut in the middle where it is too long: both ends of a path count.
class StatusLine final : public QStatusBar {
 public:
  explicit StatusLine(QWidget* parent);

  void SetText(const QString& text);
  int LeastHeight() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
};

}  // namespace tagsmith
