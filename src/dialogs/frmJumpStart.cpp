#include "dialogs/frmJumpStart.h"

#include "core/Application.h"

namespace tagsmith::dialogs {
namespace {

// The preview, in twips.
constexpr TwipsRect kPreview = {0, 0, 2100, 1950};
constexpr Twips kPreviewMargin = 150;
constexpr Twips kPreviewStep = 435;

}  // namespace

frmJumpStart::frmJumpStart(Application& application)
    : ResultForm(application, "frmJumpStart", "Jump Start") {
  cmdCreate.SetCaption("&Create");
  cmdCancel.SetCaption("Cancel");
  MyDialog.flags = kStartFromColor;
  SetDefaultButton(cmdCreate);
  PlacePreview();
  Arrange();

  cmdColors.Bind(&CommandButton::onClick, [this](int index) { cmdColors_Click(index); });
  cmdCreate.onClick = [this] { cmdCreate_Click(); };
  cmdCancel.onClick = [this] { Finish({}); };
  PressOnEnter(txtTitle, cmdCreate);
  PressOnEnter(txtBkImage, cmdCreate);
}

void frmJumpStart::PlacePreview() {
  picBackColor.Move(kPreview);
  picBackColor.SetBackColor(kWhite);
  for (int i = 0; i < lblText.Count(); ++i) {
    lblText(i).SetContainer(picBackColor);
    lblText(i).Move({kPreviewMargin, kPreviewMargin + i * kPreviewStep,
                     kPreview.width - 2 * kPreviewMargin, kPreviewStep});
    lblText(i).SetFontName("Arial");
    lblText(i).SetForeColor(kWhite);
  }
}

void frmJumpStart::Arrange() {
  std::vector<Arrangement> rows;
  for (int i = 0; i < kColourCount; ++i) {
    cmdColors(i).SetCaption("Change");
    rows.insert(rows.end(), {lblChoice(i), shpColors(i), cmdColors(i)});
  }
  SetArrangement(Column({
      Grid(2, {lblTitle, txtTitle, lblBkImage, txtBkImage}),
      Row({Group(fraColors, Grid(3, std::move(rows))), Group(fraPreview, picBackColor)}),
      ButtonRow({cmdCreate, cmdCancel}),
  }));
}

void frmJumpStart::cmdColors_Click(int index) {
  if (!PickColour(MyDialog, shpColors(index))) return;
  if (index == 0) {
    picBackColor.SetBackColor(MyDialog.color);
  } else {
    lblText(index - 1).SetForeColor(MyDialog.color);
  }
}

void frmJumpStart::cmdCreate_Click() {
  StartPageFields fields = {txtTitle.Text(), txtBkImage.Text()};
  for (std::size_t i = 0; i < kPageColours.size(); ++i) {
    fields.colours[i] = shpColors(static_cast<int>(i)).FillColor();
  }
  Finish(StartPage(fields));
}

}  // namespace tagsmith::dialogs
