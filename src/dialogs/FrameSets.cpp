#include "dialogs/FrameSets.h"

#include <array>
#include <string_view>

#include "core/Template.h"

namespace tagsmith::dialogs {
namespace {

constexpr std::string_view kTwoRowsAtTheRight = R"(<HTML>

<HEAD>
     <TITLE></TITLE>
</HEAD>

<FRAMESET COLS=120,*>
     <FRAME Src="dummy.html" Name="NavFrame">
     <FRAMESET ROWS=*,*>
          <FRAME Src="dummy.html" Name="MainContentsTop">
          <FRAME Src="dummy.html" Name="MainContentsBottom">
     </FRAMESET>

</FRAMESET>

<NOFRAMES>This Page Requires A Frames Capable Browser</NOFRAMES>
</HTML>)";

constexpr std::string_view kThreeRowsAtTheRight = R"(<HTML>

<HEAD>
     <TITLE></TITLE>
</HEAD>

<FRAMESET COLS=120,*>
     <FRAME Src="dummy.html" Name="NavFrameLeft">
          <FRAMESET ROWS=*,*, 70>
               <FRAME Src="dummy.html" Name="TopRight">
               <FRAME Src="dummy.html" Name="MidFrame">
               <FRAME Src="dummy.html" Name="NavFrameBottom">
          </FRAMESET>
</FRAMESET>

<NOFRAMES>This Page Requires A Frames Capable Browser</NOFRAMES>
</HTML>)";

constexpr std::string_view kTwoRowsOnEachSide = R"(<HTML>

<HEAD>
     <TITLE></TITLE>
</HEAD>

<FRAMESET COLS=120,*>
     <FRAMESET ROWS=15%,*>
          <FRAME Src="dummy.html" Name="NavFrameTop">
          <FRAME Src="dummy.html" Name="NavFrameBottom">
     </FRAMESET>
     <FRAMESET ROWS=*,*>
          <FRAME Src="dummy.html" Name="MainContentsTop">
          <FRAME Src="dummy.html" Name="MainContentsBottom">
     </FRAMESET>

</FRAMESET>

<NOFRAMES>This Page Requires A Frames Capable Browser</NOFRAMES>
</HTML>)";

constexpr std::array<std::string_view, kFrameSetCount> kLayouts = {
    kTwoRowsAtTheRight, kThreeRowsAtTheRight, kTwoRowsOnEachSide};

}  // namespace

std::string FrameSetPage(int layout) {
  return FillTemplate(kLayouts.at(static_cast<std::size_t>(layout)));
}

}  // namespace tagsmith::dialogs
