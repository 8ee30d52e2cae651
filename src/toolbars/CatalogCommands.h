#pragma once

namespace tagsmith {
class Application;
class Form;
}  // namespace tagsmith

namespace tagsmith::toolbars {

/// Adds the entries of the six catalogs to their boxes on `form` and selects the top one of each,
/// but none of cboHeadings, where choosing an entry inserts it.
void Fill_All_Combos(Form& form);

/// Binds the Insert buttons of the main form, which has the toolbar pages: each hands the text of
/// its box, chosen or typed, to InsertText.
void BindCatalogCommands(Application& application);

}  // namespace tagsmith::toolbars
