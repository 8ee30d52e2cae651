#pragma once

#include <span>
#include <string_view>

namespace tagsmith::toolbars {

/// Entries of a catalog that belong together. The text shown is the text that is inserted.
struct CatalogFamily {
  std::string_view name;
  std::span<const std::string_view> entries;
};

/// What one combo box of the toolbar pages offers, in the order of filling.
using Catalog = std::span<const CatalogFamily>;

Catalog HeadingCatalog();    ///< cboHeadings
Catalog AspCatalog();        ///< cboASP
Catalog TagCatalog();        ///< cboTags
Catalog CssCatalog();        ///< cboCSS
Catalog DhtmlCatalog();      ///< cboDHTML
Catalog HtmlClassCatalog();  ///< cboHTMLClass

}  // namespace tagsmith::toolbars
