#pragma once

#include <string_view>

namespace tagsmith::generators {

// The fragments of more than one line, as `FillTemplate` takes them. `{answer}` is what the user
// was asked for; `{blank}` is a blank that would stand unseen at the end of a line.

inline constexpr std::string_view kJavaScriptBlock = R"(<SCRIPT Language="JavaScript1.2">
<!--{blank}


// -->
</SCRIPT>)";

inline constexpr std::string_view kVbScriptBlock = R"(<SCRIPT Language="VBScript">
<!--{blank}


-->
</SCRIPT>)";

inline constexpr std::string_view kAspScriptBlock = R"(<SCRIPT RUNAT="Server" Language="VBScript">
<!--{blank}


// -->
</SCRIPT>)";

inline constexpr std::string_view kAdRotation = R"js(<SCRIPT Language="JavaScript"><!--

// Place this script in the header of the html page
// Call insertAd() from the onLoad of the Body tag

url = new Array("page1.html",
"page2.html",
"page3.html",
"page4.html",
"page5.html")
function insertAd() {
ranAd = Math.round(Math.random()*(url.length-1))
document.write('<P Align=Center><A HREF="'+url[ranAd]+'">')
document.write('<IMG Src="i'+ranAd+'.gif"Border=0></IMG></A></P>') }
// --></SCRIPT>

)js";

inline constexpr std::string_view kStatusScroller = R"js(<SCRIPT Language="JavaScript"><!--

// Place this script in the header of the html page

function setText(s) {
     scrollCount=0
     mScroll=127
     scrolledText=s }

function space(n) {
result=""
for(var i=0; i<n; ++i) result+=" "
return result  }

function statusScroll() {
var text=space(mScroll - scrollCount)+scrolledText
++scrollCount
scrollCount %= (mScroll+1)
window.defaultStatus=text
window.setTimeout("statusScroll()",500) }
// --></SCRIPT>

<SCRIPT Language="JavaScript"><!--

// Place this script in the body of the html page

setText("{answer}")
statusScroll()
// --></SCRIPT>

)js";

inline constexpr std::string_view kPhpLastModified = R"php(<?

print("Last Modified: ". date("D m/d/Y h:i:s a", filemtime($PATH_TRANSLATED)));

?>)php";

inline constexpr std::string_view kPhpFunctionOpen = R"(function {answer}() {
     )";

inline constexpr std::string_view kPhpFunctionClose = R"(

})";

inline constexpr std::string_view kPhpIfOpen = R"(if ({answer}) {
     )";

inline constexpr std::string_view kPhpIfClose = R"(
}
else
{

})";

}  // namespace tagsmith::generators
