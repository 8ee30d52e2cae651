#include "services/host/HunspellDictionary.h"

#include <utility>

#include "services/Error.h"

namespace tagsmith {

class HunspellDictionary::Loaded {};

HunspellDictionary::HunspellDictionary(std::string wordsFile) : wordsFile_(std::move(wordsFile)) {}
HunspellDictionary::~HunspellDictionary() = default;

std::string HunspellDictionary::DefaultWordsFile() { return {}; }

bool HunspellDictionary::Knows(std::string_view /*word*/) {
  throw Error(ErrorCode::kFileNotFound, "No dictionary");
}
std::vector<std::string> HunspellDictionary::Suggest(std::string_view /*word*/) { return {}; }
void HunspellDictionary::Learn(std::string_view /*word*/) {}

}  // namespace tagsmith
