#include "services/desktop/system/QtPrinter.h"

#include "services/Error.h"

namespace tagsmith {

class QtPrinter::Job {
 public:
  explicit Job(QPrinter& device) : painter(&device), context(painter) {}

  QPainter painter;
  QtDeviceContext context;
};

QtPrinter::QtPrinter() = default;
QtPrinter::~QtPrinter() = default;

QPrinter& QtPrinter::Device() const {
  if (device_ == nullptr) device_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  return *device_;
}

Twips QtPrinter::Width() const { return 0; }
Twips QtPrinter::Height() const { return 0; }
Twips QtPrinter::ScaleWidth() const { return 0; }
Twips QtPrinter::ScaleHeight() const { return 0; }
Twips QtPrinter::OffsetX() const { return 0; }
Twips QtPrinter::OffsetY() const { return 0; }
void QtPrinter::StartDoc() { throw Error(ErrorCode::kOther, "No printer"); }
DeviceContext& QtPrinter::Context() { return job_->context; }
void QtPrinter::NewPage() {}
void QtPrinter::EndDoc() { job_.reset(); }

}  // namespace tagsmith
