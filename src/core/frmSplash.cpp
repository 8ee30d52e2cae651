#include "core/frmSplash.h"

#include "core/Application.h"
#include "core/general1.h"
#include "services/Error.h"
#include "services/Pictures.h"

namespace tagsmith {
namespace {

constexpr Twips kSplashWidth = 6360;
constexpr Twips kSplashHeight = 1575;

}  // namespace

frmSplash::frmSplash(Application& application)
    : Form(application.platform, "frmSplash"), application_(application) {
  SetBorder(BorderStyle::kNone);
  SetWidth(kSplashWidth + kFormExtraWidth);
  SetHeight(kSplashHeight + kFormExtraHeight);
  onLoad = [this] { Form_Load(); };
}

void frmSplash::Form_Load() {
  const std::string path = AddBackslash(application_.Path()) + "Tagsmith_Logo.gif";
  try {
    imgLogo.SetPicture(application_.platform.pictures.LoadPicture(path));
  } catch (const Error&) {  // The splash stays blank.
  }
}

}  // namespace tagsmith
