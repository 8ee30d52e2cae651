#include "toolbars/CatalogCommands.h"

#include <string>
#include <string_view>
#include <vector>

#include "core/Application.h"
#include "core/frmMain.h"
#include "services/Buttons.h"
#include "services/Lists.h"
#include "toolbars/catalogs/Catalogs.h"

namespace tagsmith::toolbars {
namespace {

struct CatalogBox {
  std::string_view combo;
  Catalog (*catalog)();
  std::string_view insertButton{};  ///< Empty where choosing an entry inserts it.
};

// In the order of filling.
constexpr CatalogBox kBoxes[] = {
    {"cboHeadings", HeadingCatalog},
    {"cboASP", AspCatalog, "cmdASPDropIn"},
    {"cboTags", TagCatalog, "cmdInsert"},
    {"cboCSS", CssCatalog, "cmdCSSInsert"},
    {"cboDHTML", DhtmlCatalog, "cmdDHTMLInsert"},
    {"cboHTMLClass", HtmlClassCatalog, "cmdInsertHTMLClass"},
};

std::vector<std::string> Entries(Catalog catalog) {
  std::vector<std::string> entries;
  for (const CatalogFamily& family : catalog) {
    entries.insert(entries.end(), family.entries.begin(), family.entries.end());
  }
  return entries;
}

}  // namespace

void Fill_All_Combos(Form& form) {
  for (const CatalogBox& box : kBoxes) {
    auto& combo = form.Get<ComboBox>(box.combo);
    combo.AddItems(Entries(box.catalog()));
    if (!box.insertButton.empty()) combo.SetListIndex(0);
  }
}

void BindCatalogCommands(Application& application) {
  frmMain& form = application.MainForm();
  for (const CatalogBox& box : kBoxes) {
    if (box.insertButton.empty()) continue;
    const auto& combo = form.Get<ComboBox>(box.combo);
    form.Get<CommandButton>(box.insertButton).onClick = [&form, &combo] {
      form.InsertText(combo.Text());
    };
  }
}

}  // namespace tagsmith::toolbars
