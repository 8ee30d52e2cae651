#pragma once

#include <QPainter>
#include <QPrinter>
#include <memory>

#include "services/Printer.h"

namespace tagsmith {

/// A page of a job of Qt's printer.
class QtDeviceContext final : public DeviceContext {
 public:
  explicit QtDeviceContext(QPainter& painter) : painter_(painter) {}

  QPainter& Painter() const { return painter_; }

 private:
  QPainter& painter_;
};

/// The printer of the desktop, through Qt and its print system (CUPS). The printable area is the
/// whole paper.
class QtPrinter final : public Printer {
 public:
  QtPrinter();
  ~QtPrinter() override;
  QtPrinter(const QtPrinter&) = delete;
  QtPrinter& operator=(const QtPrinter&) = delete;

  /// What the print dialog sets up. Made at the first use: asking the print system takes time.
  QPrinter& Device() const;

  Twips Width() const override;
  Twips Height() const override;
  Twips ScaleWidth() const override;
  Twips ScaleHeight() const override;
  Twips OffsetX() const override;
  Twips OffsetY() const override;
  void StartDoc() override;
  DeviceContext& Context() override;
  void NewPage() override;
  void EndDoc() override;

 private:
  class Job;

  mutable std::unique_ptr<QPrinter> device_;
  std::unique_ptr<Job> job_;
};

}  // namespace tagsmith
