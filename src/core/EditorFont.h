#pragma once

#include "services/Units.h"

namespace tagsmith {

class Application;

/// The stored font of the edit pane. A flag or size that is no such text gives the default.
FontSpec ReadEditorFont(const Application& application);
void SaveEditorFont(Application& application, const FontSpec& font);

}  // namespace tagsmith
