#include "generators/ValueCheck.h"

#include <cstddef>
#include <string_view>

#include "core/Template.h"
#include "core/general1.h"

namespace tagsmith::generators {
namespace {

constexpr std::string_view kJavaScriptStatement = R"(if ({name}.value{symbol}{value})
     {
          alert('{message}')
     }
)";

constexpr std::string_view kVbScriptStatement = R"(If {name}.Value{symbol}{value} Then
     Msgbox "{message}",0, "Validation Error"
End If
)";

// In the order of Comparison.
constexpr std::string_view kJavaScriptSymbols[] = {"==", "!=", ">", "<", ">=", "<="};
constexpr std::string_view kVbScriptSymbols[] = {"=", "<>", ">", "<", ">=", "<="};

}  // namespace

std::string CheckStatement(const ValueCheck& check, ScriptLanguage language) {
  const bool isVbScript = language == ScriptLanguage::kVbScript;
  const auto& symbols = isVbScript ? kVbScriptSymbols : kJavaScriptSymbols;
  const std::string_view value = Trim(check.value);
  return FillTemplate(isVbScript ? kVbScriptStatement : kJavaScriptStatement,
                      {{"name", Trim(check.name)},
                       {"symbol", symbols[static_cast<std::size_t>(check.comparison)]},
                       {"value", value.empty() ? "\"\"" : value},
                       {"message", Trim(check.message)}});
}

}  // namespace tagsmith::generators
