#include "services/desktop/editpane/PaneWords.h"

#include <array>

namespace tagsmith {
namespace {

// ECMA-262, section 12.7.2, with the words that are reserved in
// places and the literals.
constexpr const char* kJavaScript =
    "as async await break case catch class const continue debugger default delete do else enum "
    "export extends false finally for from function get if import in instanceof let new null of "
    "return set static super switch this throw true try typeof undefined var void while with yield";

constexpr const char* kVisualBasic =
    "and as boolean byref byte byval call case class const currency date debug dim do double each "
    "else elseif empty end endif enum eqv error event execute exit explicit false for function get "
    "goto if imp in integer is let like long loop lset me mod new next not nothing null object on "
    "option optional or preserve private property public randomize redim rem resume rset select "
    "set "
    "shared single static step stop string sub then to true type until variant wend while with xor";

// PHP Manual, List of Keywords.
constexpr const char* kPhp =
    "__class__ __dir__ __file__ __function__ __halt_compiler __line__ __method__ __namespace__ "
    "__trait__ abstract and array as break callable case catch class clone const continue declare "
    "default die do echo else elseif empty enddeclare endfor endforeach endif endswitch endwhile "
    "enum eval exit extends false final finally fn for foreach function global goto if implements "
    "include include_once instanceof insteadof interface isset list match namespace new null or "
    "print private protected public readonly require require_once return self static switch this "
    "throw trait true try unset use var while xor yield";

constexpr std::array<PaneWords, 4> kSets = {{{1, kJavaScript},
                                             {2, kVisualBasic},
                                             {4, kPhp},
                                             {5, "ATTLIST DOCTYPE ELEMENT ENTITY NOTATION"}}};

}  // namespace

std::span<const PaneWords> PaneWordSets() { return kSets; }

}  // namespace tagsmith
