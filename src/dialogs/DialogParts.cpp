#include "dialogs/DialogParts.h"

#include <utility>

#include "core/Application.h"
#include "services/Buttons.h"
#include "services/Error.h"

namespace tagsmith::dialogs {
namespace {

/// Room for two digits.
constexpr Twips kCountWidth = 330;

}  // namespace

ResultForm::ResultForm(Application& application, std::string name, std::string_view caption)
    : Form(application.platform, std::move(name)), application_(application) {
  SetCaption(caption);
  OnLoad([] {});
}

void ResultForm::OnLoad(std::function<void()> fill) {
  onLoad = [this, fill = std::move(fill)] {
    application_.gResultText.clear();
    fill();
  };
}

void ResultForm::Finish(std::string result) {
  application_.gResultText = std::move(result);
  Unload();
}

void PressOnEnter(TextBox& field, CommandButton& button) {
  constexpr int kEnter = 13;
  field.onKeyPress = [&button](int& keyAscii) {
    if (keyAscii != kEnter) return;
    keyAscii = 0;
    button.Click();
  };
}

bool PickColour(CommonDialog& dialog, Shape& shape) {
  try {
    dialog.ShowColor();
  } catch (const Error&) {
    return false;
  }
  shape.SetFillColor(dialog.color);
  return true;
}

void SetUpItemSlider(Slider& slider, Label& shown) {
  slider.SetSteps(1, 5);
  slider.SetToolTipText("Number of List Items");
  shown.SetWidth(kCountWidth);
  slider.onChange = [&slider, &shown] { shown.SetCaption(std::to_string(slider.Value())); };
}

void FillAlignments(ComboBox& box) {
  box.AddItems({"Center", "Left", "Right"});
  box.SetListIndex(0);
}

Arrangement Labelled(Label& label, Arrangement field) { return Column({label, std::move(field)}); }

}  // namespace tagsmith::dialogs
