#include "services/desktop/system/QtPrinter.h"

#include <langinfo.h>

#include <QBuffer>
#include <QLibrary>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrinterInfo>
#include <QSaveFile>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <deque>
#include <numeric>

#include "services/Error.h"
#include "services/Platform.h"
#include "services/desktop/system/TextConversion.h"

namespace tagsmith {
namespace {

constexpr int kTwipsPerPoint = 20;

// C library's LC_PAPER, in millimetres.
QPageSize PaperOfTheCountry() {
  const auto millimetres = [](nl_item item) {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(nl_langinfo(item)));
  };
  const QSizeF size(millimetres(_NL_PAPER_WIDTH), millimetres(_NL_PAPER_HEIGHT));
  const QPageSize::PageSizeId id =
      QPageSize::id(size, QPageSize::Millimeter, QPageSize::FuzzyMatch);
  return QPageSize(id == QPageSize::Custom ? QPageSize::A4 : id);
}

bool MakesFile(const QPrinter& device) { return device.outputFormat() == QPrinter::PdfFormat; }

[[noreturn]] void Fail(ErrorCode code, const QString& text) {
  throw Error(code, FromQString(text));
}

void CheckReady(const QPrinter& device) {
  if (MakesFile(device)) {
    if (device.outputFileName().isEmpty()) {
      Fail(ErrorCode::kDeviceUnavailable, QStringLiteral("There is no printer"));
    }
  } else if (QPrinterInfo::printerInfo(device.printerName()).isNull()) {
    Fail(ErrorCode::kDeviceUnavailable,
         QStringLiteral("The printer %1 cannot be reached").arg(device.printerName()));
  }
}

// Qt hands the job to CUPS when the painter ends and does not say how that went, as when the queue
// has been taken away. The library, which Qt's plugin has loaded, remembers it.
void CheckJobTaken() {
  constexpr int kLastSuccess = 0xFF;  // The status codes of IPP, RFC 8011, appendix B.
  QLibrary cups(QStringLiteral("cups"), 2);
  const auto lastError = reinterpret_cast<int (*)()>(cups.resolve("cupsLastError"));
  const auto lastText = reinterpret_cast<const char* (*)()>(cups.resolve("cupsLastErrorString"));
  if (lastError == nullptr || lastText == nullptr || lastError() <= kLastSuccess) return;
  Fail(ErrorCode::kDeviceUnavailable, QString::fromUtf8(lastText()));
}

// The pages, from 0, in the order and as often as they are to come out: what the print system does
// not do by itself is left to the program.
std::vector<std::size_t> SheetsOf(const QPrinter& setUp, std::size_t pages) {
  std::vector<std::size_t> once(pages);
  std::iota(once.begin(), once.end(), std::size_t{0});
  const bool backwards = setUp.pageOrder() == QPrinter::LastPageFirst;
  if (backwards) std::reverse(once.begin(), once.end());

  const int copies = setUp.supportsMultipleCopies() ? 1 : setUp.copyCount();
  std::vector<std::size_t> all;
  for (int copy = 0; copy < copies; ++copy) all.insert(all.end(), once.begin(), once.end());
  if (!setUp.collateCopies()) {
    std::sort(all.begin(), all.end());
    if (backwards) std::reverse(all.begin(), all.end());
  }
  return all;
}

void SetUpLike(QPdfWriter& writer, const QPrinter& device) {
  writer.setResolution(device.resolution());
  writer.setPageLayout(device.pageLayout());
  writer.setTitle(device.docName());
  writer.setCreator(device.creator());
}

}  // namespace

// --- The page ---

int QtDeviceContext::ToPixels(Twips length) const {
  const double perInch = measure_.device()->logicalDpiX();
  return static_cast<int>(std::lround(length * perInch / kTwipsPerInch));
}

void QtDeviceContext::Render(QPainter& painter) const {
  for (const Drawing& drawing : drawings_) {
    painter.save();
    drawing(painter);
    painter.restore();
  }
}

// --- The job ---

class QtPrinter::Job {
 public:
  explicit Job(const QPrinter& device) {
    nowhere_.open(QIODevice::WriteOnly);
    SetUpLike(model_, device);
    if (!measure_.begin(&model_)) Fail(ErrorCode::kOther, QStringLiteral("Nothing can be drawn"));
    AddPage();
  }

  QtDeviceContext& Page() { return pages_.back(); }
  void AddPage() { pages_.emplace_back(measure_); }

  void Render(QPagedPaintDevice& target, const QPrinter& setUp) const {
    QPainter painter;
    if (!painter.begin(&target)) {
      Fail(ErrorCode::kDeviceUnavailable, QStringLiteral("The printer does not take the job"));
    }
    bool first = true;
    for (const std::size_t page : SheetsOf(setUp, pages_.size())) {
      if (!first && !target.newPage()) {
        Fail(ErrorCode::kOther, QStringLiteral("The printer takes no more pages"));
      }
      first = false;
      pages_[page].Render(painter);
    }
    painter.end();
  }

 private:
  // A document of one blank page that is thrown away: its text measures as that of the real one.
  QBuffer nowhere_;
  QPdfWriter model_{&nowhere_};
  QPainter measure_;
  std::deque<QtDeviceContext> pages_;  // A page that is open stays where it is.
};

// --- The printer ---

QtPrinter::QtPrinter() = default;
QtPrinter::~QtPrinter() = default;

QPrinter& QtPrinter::Device() const {
  if (device_ == nullptr) {
    device_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    device_->setDocName(QString::fromLatin1(kApplicationTitle));
    device_->setCreator(QString::fromLatin1(kApplicationTitle));
    if (MakesFile(*device_)) device_->setPageSize(PaperOfTheCountry());
  }
  return *device_;
}

Twips QtPrinter::Width() const {
  const QRectF paper = Device().pageLayout().fullRect(QPageLayout::Point);
  return static_cast<Twips>(std::lround(paper.width() * kTwipsPerPoint));
}

Twips QtPrinter::Height() const {
  const QRectF paper = Device().pageLayout().fullRect(QPageLayout::Point);
  return static_cast<Twips>(std::lround(paper.height() * kTwipsPerPoint));
}

void QtPrinter::StartDoc() {
  job_.reset();
  QPrinter& device = Device();
  CheckReady(device);
  device.setFullPage(true);  // The dialog may have set it otherwise.
  job_ = std::make_unique<Job>(device);
}

QtPrinter::Job& QtPrinter::OpenJob() const {
  if (job_ == nullptr) Fail(ErrorCode::kOther, QStringLiteral("No print job is open"));
  return *job_;
}

DeviceContext& QtPrinter::Context() { return OpenJob().Page(); }

void QtPrinter::NewPage() { OpenJob().AddPage(); }

void QtPrinter::EndDoc() {
  OpenJob();
  const std::unique_ptr<Job> job = std::move(job_);
  MakesFile(Device()) ? WriteFile(*job) : SendToPrinter(*job);
}

void QtPrinter::SendToPrinter(const Job& job) {
  QPrinter& device = Device();
  job.Render(device, device);
  const QPrinter::PrinterState state = device.printerState();
  if (state == QPrinter::Error || state == QPrinter::Aborted) {
    Fail(ErrorCode::kOther, QStringLiteral("The printer has failed"));
  }
  CheckJobTaken();
}

void QtPrinter::WriteFile(const Job& job) {
  const QPrinter& device = Device();
  QSaveFile file(device.outputFileName());
  file.setDirectWriteFallback(true);
  if (!file.open(QIODevice::WriteOnly)) Fail(ErrorCode::kPermissionDenied, file.errorString());
  QPdfWriter writer(&file);
  SetUpLike(writer, device);
  job.Render(writer, device);
  if (!file.commit()) Fail(ErrorCode::kOther, file.errorString());
}

}  // namespace tagsmith
