#include "toolbars/catalogs/Catalogs.h"

namespace tagsmith::toolbars {
namespace {

constexpr std::string_view kBackground[] = {
    "background-attachment: scroll;", "background-attachment: fixed;",
    "background-color: [color];",     "background-color: transparent;",
    "background-image: [url];",       "background-image: none;",
    "background-position: [coords];", "background-repeat: repeat;",
    "background-repeat: no-repeat;",  "background-repeat: repeat-x;",
    "background-repeat: repeat-y;",
};

constexpr std::string_view kBorder[] = {
    "border: [color];",
    "border-bottom-color: [color];",
    "border-bottom-style: none;",
    "border-bottom-style: solid;",
    "border-bottom-style: double;",
    "border-bottom-style: groove;",
    "border-bottom-style: ridge;",
    "border-bottom-style: inset;",
    "border-bottom-style: outset;",
    "border-bottom-width: thin;",
    "border-bottom-width: thick;",
    "border-bottom-width: medium;",
    "border-right-width: thin;",
    "border-right-width: thick;",
    "border-right-width: medium;",
    "border-left-width: thin;",
    "border-left-width: thick;",
    "border-left-width: medium;",
    "border-style: none;",
    "border-style: solid;",
    "border-style: double;",
    "border-style: groove;",
    "border-style: ridge;",
    "border-style: inset;",
    "border-style: outset;",
    "border-top: none;",
    "border-top: solid;",
    "border-top: double;",
    "border-top: groove;",
    "border-top: ridge;",
    "border-top: inset;",
    "border-top: outset;",
    "border-left: none;",
    "border-left: solid;",
    "border-left: double;",
    "border-left: groove;",
    "border-left: ridge;",
    "border-left: inset;",
    "border-left: outset;",
    "border-right: none;",
    "border-right: solid;",
    "border-right: double;",
    "border-right: groove;",
    "border-right: ridge;",
    "border-right: inset;",
    "border-right: outset;",
};

constexpr std::string_view kColor[] = {
    "color: [color];",
};

constexpr std::string_view kCursor[] = {
    "cursor: auto;",      "cursor: crosshair;", "cursor: default;",   "cursor: hand;",
    "cursor: move;",      "cursor: e-resize;",  "cursor: ne-resize;", "cursor: n-resize;",
    "cursor: nw-resize;", "cursor: w-resize;",  "cursor: sw-resize;", "cursor: se-resize;",
    "cursor: s-resize;",  "cursor: text;",      "cursor: wait;",      "cursor: help;",
};

constexpr std::string_view kDisplay[] = {
    "display: none;",
    "display: ;",
};

constexpr std::string_view kFontFamily[] = {
    "font-family: [family name];",
};

constexpr std::string_view kFilter[] = {
    "filter: blendtrans;", "filter: revealtrans;", "filter: alpha;",  "filter: blur;",
    "filter: chroma;",     "filter: dropshadow;",  "filter: fliph;",  "filter: flipv;",
    "filter: glow;",       "filter: gray;",        "filter: invert;", "filter: light;",
    "filter: mask;",       "filter: shadow;",      "filter: wave;",   "filter: xray;",
};

constexpr std::string_view kFontStyle[] = {
    "font-style: normal;",
    "font-style: italic;",
    "font-style: oblique;",
};

constexpr std::string_view kLetterSpacing[] = {
    "letter-spacing: normal;",
    "letter-spacing: [length];",
};

constexpr std::string_view kLineHeight[] = {
    "line-height: normal;",
    "line-height: [number];",
};

constexpr std::string_view kPosition[] = {
    "position: absolute;",
    "position: relative;",
    "position: static;",
};

constexpr std::string_view kFloat[] = {
    "float: left;",
    "float: right;",
    "float: none;",
};

constexpr std::string_view kText[] = {
    "text-align: left;",           "text-align: right;",
    "text-align: center;",         "text-align: justify;",
    "text-decoration: none;",      "text-decoration: underline;",
    "text-decoration: overline;",  "text-decoration: line-through;",
    "text-transform: capitalize;", "text-transform: uppercase;",
    "text-transform: lowercase;",  "text-transform: none;",
    "text-indent: [length];",
};

constexpr std::string_view kVisibility[] = {
    "visibility: visible;",
    "visibility: hidden;",
    "visibility: inherit;",
};

constexpr std::string_view kZIndex[] = {
    "z-index: [number];",
};

constexpr CatalogFamily kFamilies[] = {
    {"background", kBackground},
    {"border", kBorder},
    {"color", kColor},
    {"cursor", kCursor},
    {"display", kDisplay},
    {"font-family", kFontFamily},
    {"filter", kFilter},
    {"font-style", kFontStyle},
    {"letter-spacing", kLetterSpacing},
    {"line-height", kLineHeight},
    {"position", kPosition},
    {"float", kFloat},
    {"text", kText},
    {"visibility", kVisibility},
    {"z-index", kZIndex},
};

}  // namespace

Catalog CssCatalog() { return kFamilies; }

}  // namespace tagsmith::toolbars
