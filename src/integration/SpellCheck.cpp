#include "integration/SpellCheck.h"

#include <algorithm>
#include <utility>

#include "services/Lines.h"
#include "services/Utf8.h"

namespace tagsmith::integration {
namespace {

// How much of a line is shown on each side of a word, in bytes.
constexpr std::size_t kReach = 28;
constexpr std::string_view kCut = "\xE2\x80\xA6";

std::string InOneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
  return line;
}

std::string EndOfLine(std::string_view text) {
  const std::size_t lineStart = text.find_last_of("\r\n") + 1;
  const std::size_t from = SnapToCharacter(text, text.size() - std::min(text.size(), kReach));
  if (from <= lineStart) {
    const std::size_t start = text.find_first_not_of(" \t", lineStart);
    return InOneLine(text.substr(std::min(start, text.size())));
  }
  return std::string(kCut) + InOneLine(text.substr(from));
}

std::string StartOfLine(std::string_view text) {
  const std::size_t lineEnd = std::min(text.find_first_of("\r\n"), text.size());
  const std::size_t to = SnapToCharacter(text, kReach);
  if (to >= lineEnd) return InOneLine(text.substr(0, lineEnd));
  return InOneLine(text.substr(0, to)).append(kCut);
}

}  // namespace

void SpellCheck::CheckText(std::string text) {
  text_ = std::move(text);
  verdicts_.clear();
  corrected_.clear();
  copied_ = 0;
  word_ = {};
  wordStart_ = 0;
  currentWord_.clear();
  changed_ = false;
  words_.emplace(text_, options);
  code_ = kDoubtfulWord;
  ContinueCheck();
}

std::int16_t SpellCheck::ContinueCheck() {
  if (code_ != kDoubtfulWord) return code_;
  code_ = kCheckFailed;  // Should the dictionary throw.
  while (const std::optional<PageWord> word = words_->Next()) {
    const Verdict& verdict = Judge(word->text);
    if (verdict.kind == Verdict::Kind::kRight) continue;
    if (verdict.kind == Verdict::Kind::kChange) {
      Correct(*word, verdict.replacement);
      continue;
    }
    word_ = *word;
    word_.text = spelling_ = word->text;
    currentWord_ = Written(word_);
    wordStart_ = corrected_.size() + word_.start - copied_;
    return code_ = kDoubtfulWord;
  }
  return code_ = kCheckFinished;
}

const SpellCheck::Verdict& SpellCheck::Judge(std::string_view word) {
  const auto known = verdicts_.find(word);
  if (known != verdicts_.end()) return known->second;
  const auto kind = dictionary_.Knows(word) ? Verdict::Kind::kRight : Verdict::Kind::kDoubtful;
  return verdicts_.emplace(word, Verdict{kind, {}}).first->second;
}

// Gives what stands in the word's place now. The copy grows word by word, so that many corrections
// cost no more than one reading of the text.
std::string SpellCheck::Correct(const PageWord& word, std::string_view replacement) {
  std::string written = WrittenAs(replacement, word, Written(word));
  if (written == Written(word)) return written;
  corrected_.append(text_, copied_, word.start - copied_).append(written);
  copied_ = word.start + word.length;
  changed_ = true;
  return written;
}

std::string SpellCheck::CheckedText() {
  changed_ = false;
  return corrected_ + text_.substr(copied_);
}

std::string SpellCheck::Surroundings() const {
  const std::string_view text = text_;
  const std::size_t room = 2 * kReach;
  const std::size_t from = std::max(copied_, word_.start - std::min(word_.start, room));
  std::string before = corrected_.substr(corrected_.size() - std::min(corrected_.size(), room));
  if (from > copied_) before.clear();
  before.append(text.substr(from, word_.start - from));
  const std::size_t end = word_.start + word_.length;
  return EndOfLine(before).append(Written(word_)).append(StartOfLine(text.substr(end)));
}

void SpellCheck::Change(std::string_view replacement) {
  if (code_ == kDoubtfulWord && word_.start >= copied_) currentWord_ = Correct(word_, replacement);
}

void SpellCheck::ChangeAll(std::string_view replacement) {
  verdicts_[spelling_] = {Verdict::Kind::kChange, std::string(replacement)};
  Change(replacement);
}

void SpellCheck::Learn() {
  // Other forms of a word that was learnt are right as well: they are looked up again.
  std::erase_if(verdicts_,
                [](const auto& entry) { return entry.second.kind == Verdict::Kind::kDoubtful; });
  IgnoreAll();
  dictionary_.Learn(spelling_);
}

void SpellCheck::EndByUser() {
  if (code_ != kDoubtfulWord) return;
  code_ = kCheckEndedByUser;
  while (const std::optional<PageWord> word = words_->Next()) {
    const auto known = verdicts_.find(word->text);
    if (known == verdicts_.end() || known->second.kind != Verdict::Kind::kChange) continue;
    Correct(*word, known->second.replacement);
  }
}

}  // namespace tagsmith::integration
