#include "integration/frmImageView.h"

#include "core/Application.h"
#include "core/FileLists.h"
#include "core/Hourglass.h"
#include "core/general1.h"
#include "services/Error.h"
#include "services/Pictures.h"

namespace tagsmith::integration {
namespace {

// The size at the start, and the least one.
constexpr Twips kWidth = 9900;
constexpr Twips kHeight = 7500;
constexpr Twips kLeastWidth = 6600;
constexpr Twips kLeastHeight = 6045;

// What lies between a control's edge and the form's outer size.
constexpr Twips kRightOfOk = 1320;
constexpr Twips kBelowOk = 1245;
constexpr Twips kBesideFileList = 2385;

constexpr TwipsRect kDrivePlace{75, 75, 2400, 330};
constexpr TwipsRect kDirectoryPlace{75, 450, 2400, 1125};
constexpr TwipsRect kFileListPlace{75, 1620, 2400, 0};
constexpr TwipsRect kOkPlace{0, 0, 1125, 435};
/// While there is no picture: as much as the smallest form has room for.
constexpr TwipsRect kPicturePlace{2580, 90, 3810, 4545};
constexpr Colour kEmptyGround = 0xA0A0A0;  ///< As an image shows itself without a picture.
constexpr TwipsRect kProblemPlace{2730, 240, 3510, 4245};

}  // namespace

frmImageView::frmImageView(Application& application)
    : Form(application.platform, "frmImageView"), application_(application) {
  SetCaption("Image Viewer");
  SetBorder(BorderStyle::kSizable);
  SetWidth(kWidth);
  SetHeight(kHeight);
  MyFileList.SetPattern("*.gif;*.bmp;*.jpg;*.wmf;*.dib");
  cmdOK.SetCaption("&OK");
  cmdOK.SetPictureName("frmImageView_cmdOK");
  SetInitialFocus(MyFileList);
  PlaceControls();

  onResize = [this] { Form_Resize(); };
  ChainFileLists(application_, {*this, MyDrive, MyDirectory, &MyFileList});
  MyFileList.onClick = [this] { MyFileList_Click(); };
  cmdOK.onClick = [this] { Unload(); };
}

void frmImageView::PlaceControls() {
  MyDrive.Move(kDrivePlace);
  MyDirectory.Move(kDirectoryPlace);
  MyFileList.Move(kFileListPlace);
  cmdOK.Move(kOkPlace);
  imgView.Move(kPicturePlace);
  imgView.SetHasBorder(true);
  lblProblem.Move(kProblemPlace);
  lblProblem.SetForeColor(kBlack);
  lblProblem.SetBackColor(kEmptyGround);
  lblProblem.SetVisible(false);
  lblProblem.SetPlainCaption(true);
  Form_Resize();
}

void frmImageView::Form_Resize() {
  if (IsMinimized()) return;
  if (Width() < kLeastWidth) SetWidth(kLeastWidth);
  if (Height() < kLeastHeight) SetHeight(kLeastHeight);
  cmdOK.SetLeft(Width() - kRightOfOk);
  cmdOK.SetTop(Height() - kBelowOk);
  MyFileList.SetHeight(Height() - kBesideFileList);
}

void frmImageView::MyFileList_Click() {
  const std::string path =
      AddBackslash(MyDirectory.Path()) + MyFileList.List(MyFileList.ListIndex());
  const Hourglass hourglass(*this);
  imgView.SetPicture(nullptr);  // Two large ones at a time are too much.
  lblProblem.SetVisible(false);
  try {
    imgView.SetPicture(application_.platform.pictures.LoadPicture(path));
  } catch (const Error& error) {
    imgView.Move(kPicturePlace);
    lblProblem.SetCaption(error.what());
    lblProblem.SetVisible(true);
  }
}

}  // namespace tagsmith::integration
