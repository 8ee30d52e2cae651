#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "services/Control.h"
#include "services/desktop/windows/WidgetView.h"

namespace tagsmith {

/// The view of a control, its widget a child of `parent`; null for a menu.
std::unique_ptr<WidgetView> MakeControlView(Control& control, ViewHost& host, QWidget& parent);

/// Whether the user passes over controls of the kind: they lie behind the others.
bool StandsBehind(ControlKind kind);

/// Lets the access key of each label lead to the next control behind it that takes the keyboard.
/// `views` is in the order of the controls.
void LinkLabelsToFields(const std::vector<WidgetView*>& views);

}  // namespace tagsmith
