#include "dialogs/StartPage.h"

#include "core/Template.h"
#include "dialogs/Attributes.h"

namespace tagsmith::dialogs {
namespace {

constexpr std::string_view kPage = R"(<HTML>

<HEAD>
     <TITLE>{title}</TITLE>
</HEAD>

{body}





</BODY>
</HTML>)";

std::string BodyTag(const StartPageFields& fields) {
  std::string tag = "<BODY";
  if (!fields.backgroundImage.empty()) {
    tag.append(" Background=\"").append(fields.backgroundImage).append("\"");
  }
  for (std::size_t i = 0; i < kPageColours.size(); ++i) {
    AppendColour(tag, kPageColours[i], fields.colours[i]);
  }
  return tag + ">";
}

}  // namespace

std::string StartPage(const StartPageFields& fields) {
  return FillTemplate(kPage, {{"title", fields.title}, {"body", BodyTag(fields)}});
}

}  // namespace tagsmith::dialogs
