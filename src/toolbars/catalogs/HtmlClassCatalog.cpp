#include "toolbars/catalogs/Catalogs.h"

namespace tagsmith::toolbars {
namespace {

constexpr std::string_view kCalls[] = {
    "$b = new HTML;",
    "$b->A();",
    "$b->BR();",
    "$b->HR();",
    "$b->Opening();",
    "$b->Closing();",
    "$b->DL();",
    "$b->H();",
    "$b->IMG();",
    "$b->Marquee();",
    "$b->NBSP();",
    "$b->OL();",
    "$b->P();",
    "$b->Select();",
    "$b->TD();",
    "$b->TR();",
    "$b->UL();",
    "$b->WriteHTML();",
    "include(\"./html_class.inc\");",
};

constexpr CatalogFamily kFamilies[] = {
    {"calls", kCalls},
};

}  // namespace

Catalog HtmlClassCatalog() { return kFamilies; }

}  // namespace tagsmith::toolbars
