#include "toolbars/catalogs/Catalogs.h"

namespace tagsmith::toolbars {
namespace {

constexpr std::string_view kLevels[] = {
    "H1", "H2", "H3", "H4", "H5", "H6",
};

constexpr CatalogFamily kFamilies[] = {
    {"levels", kLevels},
};

}  // namespace

Catalog HeadingCatalog() { return kFamilies; }

}  // namespace tagsmith::toolbars
