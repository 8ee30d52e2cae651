#include "services/desktop/editpane/PagePrinter.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "services/Error.h"
#include "services/desktop/editpane/LinedText.h"
#include "services/desktop/editpane/PaneLook.h"
#include "services/desktop/editpane/ScintillaText.h"
#include "services/desktop/system/QtPrinter.h"

namespace tagsmith {
namespace {

using Sci = QsciScintillaBase;

// In bytes.
constexpr std::size_t kLeastGuess = 1024;

QRect AreaOf(const PageRequest& request, const QtDeviceContext& device) {
  const TwipsRect& place = request.drawing;
  const QPoint corner(device.ToPixels(place.left), device.ToPixels(place.top));
  return {corner, QSize(device.ToPixels(place.left + place.width) - corner.x(),
                        device.ToPixels(place.top + place.height) - corner.y())};
}

}  // namespace

/// The component off the screen.
class PagePrinter::Sheet {
 public:
  explicit Sheet(FontSpec font)
      : underline_(std::exchange(font.underline, false)), strikeThrough_(font.strikeThru) {
    pane_.SendScintilla(Sci::SCI_SETCODEPAGE, long{Sci::SC_CP_UTF8});
    pane_.SendScintilla(Sci::SCI_SETUNDOCOLLECTION, 0L);
    pane_.SendScintilla(Sci::SCI_SETMODEVENTMASK, 0L);
    for (unsigned long margin = 0; margin < kMargins; ++margin) {
      pane_.SendScintilla(Sci::SCI_SETMARGINWIDTHN, margin, 0L);
    }
    pane_.SendScintilla(Sci::SCI_SETPRINTCOLOURMODE, long{Sci::SC_PRINT_BLACKONWHITE});
    pane_.SendScintilla(Sci::SCI_SETPRINTWRAPMODE, long{Sci::SC_WRAP_WORD});
    SetStyleFont(pane_, Sci::STYLE_DEFAULT, font);
    pane_.SendScintilla(Sci::SCI_STYLESETFORE, std::uintptr_t{Sci::STYLE_DEFAULT},
                        QColor(Qt::black));
    pane_.SendScintilla(Sci::SCI_STYLESETBACK, std::uintptr_t{Sci::STYLE_DEFAULT},
                        QColor(Qt::white));
    pane_.SendScintilla(Sci::SCI_STYLECLEARALL);
  }

  // Lays `text` out from its start. Gives the first byte that does not fit.
  std::size_t Measure(const std::string& text, QPainter& painter, const QRect& area) {
    return Format(text, painter, area, false);
  }

  void Draw(const std::string& text, QPainter& painter, const QRect& area) {
    if (!underline_ && !strikeThrough_) {
      Format(text, painter, area, true);
      return;
    }
    LinedText lined(painter, underline_, strikeThrough_);
    QPainter linePainter(&lined);
    Format(text, linePainter, area, true);
  }

 private:
  static constexpr unsigned long kMargins = 5;

  std::size_t Format(const std::string& text, QPainter& painter, const QRect& area, bool draw) {
    pane_.SendScintilla(Sci::SCI_CLEARALL);
    pane_.SendScintilla(Sci::SCI_ADDTEXT, std::uintptr_t{text.size()}, text.data());
    return static_cast<std::size_t>(pane_.SendScintilla(Sci::SCI_FORMATRANGE, draw ? 1UL : 0UL,
                                                        &painter, area, 0L,
                                                        static_cast<long>(text.size())));
  }

  Sci pane_;
  bool underline_;
  bool strikeThrough_;
};

PagePrinter::PagePrinter(const FontSpec& font) : sheet_(std::make_shared<Sheet>(font)) {}

// A page is laid out twice: once to see what fits, once more when the job is committed.
std::size_t PagePrinter::Format(const ScintillaText& source, const PageRequest& request) {
  const auto& device = dynamic_cast<QtDeviceContext&>(*request.measure);
  const QRect area = AreaOf(request, device);
  const std::size_t first = source.Snap(request.firstCharacter);
  const std::size_t last = request.lastCharacter < 0
                               ? source.Length()
                               : source.Snap(static_cast<std::size_t>(request.lastCharacter));
  for (;; guess_ *= 2) {
    const std::size_t end = source.Snap(std::min(first + guess_, std::max(first, last)));
    std::string text = source.Bytes({first, end - first});
    const std::size_t fits = sheet_->Measure(text, device.Measure(), area);
    if (fits == text.size() && end < last) continue;  // There is room for more.
    guess_ = std::max(kLeastGuess, fits + fits / 2);
    if (request.render != nullptr) {
      dynamic_cast<QtDeviceContext&>(*request.render)
          .Draw([sheet = sheet_, text = std::move(text), area](QPainter& painter) {
            sheet->Draw(text, painter, area);
          });
    }
    return first + fits;
  }
}

}  // namespace tagsmith
