#include "services/desktop/windows/ViewFactory.h"

#include "services/Buttons.h"
#include "services/FileBoxes.h"
#include "services/Graphics.h"
#include "services/Lists.h"
#include "services/MSFlexGrid.h"
#include "services/Ranges.h"
#include "services/RichTextBox.h"
#include "services/SSTab.h"
#include "services/TextBox.h"
#include "services/desktop/windows/ButtonViews.h"
#include "services/desktop/windows/ComboViews.h"
#include "services/desktop/windows/FileListView.h"
#include "services/desktop/windows/GraphicViews.h"
#include "services/desktop/windows/GridView.h"
#include "services/desktop/windows/LabelView.h"
#include "services/desktop/windows/ListViews.h"
#include "services/desktop/windows/PaneView.h"
#include "services/desktop/windows/RangeViews.h"
#include "services/desktop/windows/TabViews.h"
#include "services/desktop/windows/TextBoxView.h"

namespace tagsmith {
namespace {

template <class View, class Model>
std::unique_ptr<WidgetView> Make(Control& control, ViewHost& host, QWidget& parent) {
  return std::make_unique<View>(static_cast<Model&>(control), host, parent);
}

}  // namespace

std::unique_ptr<WidgetView> MakeControlView(Control& control, ViewHost& host, QWidget& parent) {
  switch (control.Kind()) {
    case ControlKind::kCheckBox:
      return Make<CheckBoxView, CheckBox>(control, host, parent);
    case ControlKind::kComboBox:
      return Make<ComboBoxView, ComboBox>(control, host, parent);
    case ControlKind::kCommandButton:
      return Make<CommandButtonView, CommandButton>(control, host, parent);
    case ControlKind::kDirListBox:
      return Make<DirListView, DirListBox>(control, host, parent);
    case ControlKind::kDriveListBox:
      return Make<DriveListView, DriveListBox>(control, host, parent);
    case ControlKind::kFileListBox:
      return Make<FileListView, FileListBox>(control, host, parent);
    case ControlKind::kFrame:
      return Make<FrameView, Frame>(control, host, parent);
    case ControlKind::kImage:
      return Make<ImageView, Image>(control, host, parent);
    case ControlKind::kLabel:
      return Make<LabelView, Label>(control, host, parent);
    case ControlKind::kLine:
      return Make<LineView, Line>(control, host, parent);
    case ControlKind::kListBox:
      return Make<ListBoxView, ListBox>(control, host, parent);
    case ControlKind::kMSFlexGrid:
      return Make<GridView, MSFlexGrid>(control, host, parent);
    case ControlKind::kOptionButton:
      return Make<OptionButtonView, OptionButton>(control, host, parent);
    case ControlKind::kPictureBox:
      return Make<PictureBoxView, PictureBox>(control, host, parent);
    case ControlKind::kProgressBar:
      return Make<ProgressBarView, ProgressBar>(control, host, parent);
    case ControlKind::kRichTextBox:
      return Make<PaneView, RichTextBox>(control, host, parent);
    case ControlKind::kShape:
      return Make<ShapeView, Shape>(control, host, parent);
    case ControlKind::kSlider:
      return Make<SliderView, Slider>(control, host, parent);
    case ControlKind::kSSTab:
      return Make<TabView, SSTab>(control, host, parent);
    case ControlKind::kStatusBar:
      return Make<StatusBarView, StatusBar>(control, host, parent);
    case ControlKind::kTextBox:
      return Make<TextBoxView, TextBox>(control, host, parent);
    case ControlKind::kMenu:
      break;
  }
  return nullptr;
}

bool StandsBehind(ControlKind kind) {
  return kind == ControlKind::kLabel || kind == ControlKind::kImage ||
         kind == ControlKind::kShape || kind == ControlKind::kLine;
}

namespace {

// A field that stands in a frame by itself is called what the frame says.
void NameAfterFrame(const WidgetView& view) {
  const Control* container = view.Model().Container();
  if (container == nullptr || container->Kind() != ControlKind::kFrame) return;
  if (qobject_cast<QAbstractButton*>(view.FocusTarget()) != nullptr) return;
  if (!view.FocusTarget()->accessibleName().isEmpty()) return;
  view.FocusTarget()->setAccessibleName(
      WithoutMnemonic(static_cast<const Frame*>(container)->Caption()));
}

}  // namespace

void LinkLabelsToFields(const std::vector<WidgetView*>& views) {
  QWidget* field = nullptr;
  for (auto view = views.rbegin(); view != views.rend(); ++view) {
    if (auto* label = dynamic_cast<LabelView*>(*view)) {
      label->LinkTo(field);
    } else if ((*view)->FocusTarget()->focusPolicy() != Qt::NoFocus) {
      field = (*view)->FocusTarget();
    }
  }
  for (const WidgetView* view : views) NameAfterFrame(*view);
}

}  // namespace tagsmith
