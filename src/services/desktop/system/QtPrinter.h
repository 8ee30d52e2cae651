#pragma once

#include <QPainter>
#include <QPrinter>
#include <functional>
#include <memory>
#include <vector>

#include "services/Printer.h"

namespace tagsmith {

/// A page of a job of Qt's printer. Drawing on it is only noted, and done when the job is
/// committed: a job that is given up before leaves nothing behind, neither paper nor half a file.
class QtDeviceContext final : public DeviceContext {
 public:
  using Drawing = std::function<void(QPainter&)>;

  explicit QtDeviceContext(QPainter& measure) : measure_(measure) {}

  /// Lays text out as the page will; what is drawn with it is lost. It and the painters of the
  /// drawings count in the device's pixels from the paper's corner.
  QPainter& Measure() const { return measure_; }
  int ToPixels(Twips length) const;

  /// `drawing` takes with it what it needs until then. It does not throw: Qt takes no job back.
  void Draw(Drawing drawing) { drawings_.push_back(std::move(drawing)); }
  /// Draws what was noted.
  void Render(QPainter& painter) const;

 private:
  QPainter& measure_;
  std::vector<Drawing> drawings_;
};

/// The printer of the desktop, through Qt and its print system (CUPS), or a PDF file. The printable
/// area is the whole paper. A PDF file is old or new, unless its folder takes no new file: then it
/// is written in place. Qt cannot abort a job for CUPS that has begun, and does not notice when it
/// fills the disk of temporary files: a part may be printed then.
class QtPrinter final : public Printer {
 public:
  QtPrinter();
  ~QtPrinter() override;
  QtPrinter(const QtPrinter&) = delete;
  QtPrinter& operator=(const QtPrinter&) = delete;

  /// What the print dialog sets up. Made at the first use: asking the print system takes time.
  /// Where there is no printer it stands for a PDF file on the paper of the user's country.
  QPrinter& Device() const;

  Twips Width() const override;
  Twips Height() const override;
  Twips ScaleWidth() const override { return Width(); }
  Twips ScaleHeight() const override { return Height(); }
  Twips OffsetX() const override { return 0; }
  Twips OffsetY() const override { return 0; }
  void StartDoc() override;
  DeviceContext& Context() override;
  void NewPage() override;
  void EndDoc() override;

 private:
  class Job;

  Job& OpenJob() const;
  void SendToPrinter(const Job& job);
  void WriteFile(const Job& job);

  mutable std::unique_ptr<QPrinter> device_;
  std::unique_ptr<Job> job_;
};

}  // namespace tagsmith
