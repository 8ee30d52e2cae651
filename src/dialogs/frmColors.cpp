#include "dialogs/frmColors.h"

#include <string>
#include <vector>

#include "core/Application.h"
#include "dialogs/DialogParts.h"
#include "dialogs/Tags.h"

namespace tagsmith::dialogs {
namespace {

constexpr const char* kNamedColours[] = {
    "BLACK",
    "BLUE",
    "DEEPSKYBLUE",
    "GREEN",
    "CYAN",
    "DODGERBLUE",
    "FORESTGREEN",
    "DARKSLATEGRAY",
    "MEDIUMSEAGREEN",
    "DARKSLATEBLUE",
    "DARKOLIVEGREEN",
    "CORNFLOWERBLUE",
    "DIMGRAY",
    "OLIVEDRAB",
    "LIGHTSLATEGRAY",
    "LAWNGREEN",
    "AQUAMARINE",
    "BLUEVIOLET",
    "DARKSEAGREEN",
    "YELLOWGREEN",
    "LIGHTBLUE",
    "PALETURQUOISE",
    "FIREBRICK",
    "MEDIUMORCHID",
    "DARKKHAKI",
    "MEDIUMVIOLETRED",
    "CHOCOLATE",
    "NAVY",
    "DARKGREEN",
    "DARKTURQUOISE",
    "SPRINGGREEN",
    "MIDNIGHTBLUE",
    "LIGHTSEAGREEN",
    "SEAGREEN",
    "LIMEGREEN",
    "TURQUOISE",
    "MEDIUMTURQUOISE",
    "CADETBLUE",
    "MEDIUMAQUAMARINE",
    "SLATEBLUE",
    "SLATEGRAY",
    "MEDIUMSLATEBLUE",
    "CHARTREUSE",
    "LIGHTSLATEBLUE",
    "SADDLEBROWN",
    "PALEGREEN",
    "BROWN",
    "GREENYELLOW",
    "MAROON",
    "POWDERBLUE",
    "DARKGOLDENROD",
    "ROSYBROWN",
    "GRAY",
    "VIOLETRED",
    "LIGHTGRAY",
    "PALEVIOLETRED",
    "BURLYWOOD",
    "LIGHTCYAN",
    "DARKSALMON",
    "LIGHTCORAL",
    "ALICEBLUE",
    "AZURE",
    "WHEAT",
    "WHITESMOKE",
    "GHOSTWHITE",
    "ANTIQUEWHITE",
    "OLDLACE",
    "MAGENTA",
    "TOMATO",
    "CORAL",
    "LIGHTPINK",
    "MOCCASIN",
    "YELLOW",
    "TAN",
    "GOLDENROD",
    "PLUM",
    "LAVENDER",
    "VIOLET",
    "KHAKI",
    "HONEYDEW",
    "SANDYBROWN",
    "BEIGE",
    "MINTCREAM",
    "SALMON",
    "LINEN",
    "RED",
    "DEEPPINK",
    "HOTPINK",
    "ORANGE",
    "GOLD",
    "SEASHELL",
    "WHITE",
};

}  // namespace

frmColors::frmColors(Application& application)
    : Form(application.platform, "frmColors"), application_(application) {
  SetCaption("Color Dialog");
  cmdColors.SetCaption("Change Color");
  cmdInsert.SetCaption("Insert Color");
  cmdCancel.SetCaption("Cancel");
  lstColors.SetEnabled(false);
  MyDialog.flags = kStartFromColor;
  SetDefaultButton(cmdInsert);
  SetArrangement(Column(
      {Row({shpColors, cmdColors}), chkColor, lstColors, ButtonRow({cmdInsert, cmdCancel})}));

  onLoad = [this] { Form_Load(); };
  chkColor.onClick = [this] { lstColors.SetEnabled(!lstColors.Enabled()); };
  cmdColors.onClick = [this] { PickColour(MyDialog, shpColors); };
  cmdInsert.onClick = [this] { cmdInsert_Click(); };
  cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

void frmColors::Form_Load() {
  application_.gColorValue = kNoColour;
  FillList();
}

void frmColors::FillList() {
  lstColors.AddItems({std::begin(kNamedColours), std::end(kNamedColours)});
  lstColors.SetListIndex(0);
}

void frmColors::cmdInsert_Click() {
  application_.gColorValue = ColourValue({.isNamed = chkColor.Value() != 0,
                                          .name = lstColors.Text(),
                                          .colour = shpColors.FillColor()});
  Unload();
}

void frmColors::cmdCancel_Click() {
  application_.gColorValue = kNoColour;
  Unload();
}

}  // namespace tagsmith::dialogs
