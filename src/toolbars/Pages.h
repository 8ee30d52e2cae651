#pragma once

namespace tagsmith {
class Form;
}

namespace tagsmith::toolbars {

/// Makes the controls of all toolbar pages on `form`, which has the strips MyTab and MyTabScript.
/// They stand in one row, in twips from their strip's top left corner.
void AddPages(Form& form);

}  // namespace tagsmith::toolbars
