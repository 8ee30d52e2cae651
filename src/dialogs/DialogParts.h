#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "services/Arrangement.h"
#include "services/CommonDialog.h"
#include "services/Form.h"
#include "services/Graphics.h"
#include "services/Lists.h"
#include "services/Ranges.h"
#include "services/TextBox.h"

namespace tagsmith {
class Application;
}

namespace tagsmith::dialogs {

/// The least width of a field for an address or a longer text, in twips.
constexpr Twips kWideField = 4200;
/// The least width of a field for a number, in twips.
constexpr Twips kNarrowField = 1500;

/// A dialog that hands a text back in `gResultText`, which is empty until it does: after Cancel and
/// the title bar it still is.
class ResultForm : public Form {
 protected:
  ResultForm(Application& application, std::string name, std::string_view caption);

  Application& App() const { return application_; }
  /// What happens when the dialog is loaded, after `gResultText` has been emptied.
  void OnLoad(std::function<void()> fill);
  /// Hands `result` back and closes the dialog.
  void Finish(std::string result);

 private:
  Application& application_;
};

/// The Enter key in `field` presses `button` and types nothing, also in a multi-line field.
void PressOnEnter(TextBox& field, CommandButton& button);

/// Lets the user pick a colour and shows it in `shape`. After a Cancel the shape takes the colour
/// that the dialog had before, which is black at first. An error leaves the shape as it was; gives
/// false then.
bool PickColour(CommonDialog& dialog, Shape& shape);

/// Gives the slider that asks for a number of list items its steps and tool tip; `shown` follows
/// it.
void SetUpItemSlider(Slider& slider, Label& shown);

/// The alignments of a line or a block, for a sorted box; the top one is chosen.
void FillAlignments(ComboBox& box);

/// A field with its label above it.
Arrangement Labelled(Label& label, Arrangement field);

}  // namespace tagsmith::dialogs
