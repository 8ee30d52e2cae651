#include "services/desktop/system/KeyNotation.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "services/Error.h"
#include "services/desktop/system/TextConversion.h"

namespace tagsmith {
namespace {

struct NamedKey {
  const char* name;
  int key;
  const char* text;
};

constexpr std::array<NamedKey, 15> kNamedKeys = {{{"BACKSPACE", Qt::Key_Backspace, "\b"},
                                                  {"BS", Qt::Key_Backspace, "\b"},
                                                  {"DEL", Qt::Key_Delete, "\x7f"},
                                                  {"DELETE", Qt::Key_Delete, "\x7f"},
                                                  {"DOWN", Qt::Key_Down, ""},
                                                  {"END", Qt::Key_End, ""},
                                                  {"ENTER", Qt::Key_Return, "\r"},
                                                  {"ESC", Qt::Key_Escape, "\x1b"},
                                                  {"HOME", Qt::Key_Home, ""},
                                                  {"LEFT", Qt::Key_Left, ""},
                                                  {"PGDN", Qt::Key_PageDown, ""},
                                                  {"PGUP", Qt::Key_PageUp, ""},
                                                  {"RIGHT", Qt::Key_Right, ""},
                                                  {"TAB", Qt::Key_Tab, "\t"},
                                                  {"UP", Qt::Key_Up, ""}}};

constexpr int kFunctionKeys = 12;

[[noreturn]] void ThrowBadKeys() { throw Error(ErrorCode::kOther, "The keys cannot be read"); }

Qt::KeyboardModifiers ModifierOf(char32_t character) {
  switch (character) {
    case U'^':
      return Qt::ControlModifier;
    case U'%':
      return Qt::AltModifier;
    case U'+':
      return Qt::ShiftModifier;
    default:
      return Qt::NoModifier;
  }
}

KeyStroke CharacterKey(char32_t character, Qt::KeyboardModifiers modifiers) {
  const char32_t upper = QChar::toUpper(character);
  const char32_t lower = QChar::toLower(character);
  // A capital letter is typed with Shift. Together with Control or Alt it only names its key.
  const bool isCommand = modifiers & (Qt::ControlModifier | Qt::AltModifier);
  if (!isCommand && upper != lower && character == upper) modifiers |= Qt::ShiftModifier;
  const char32_t typed = modifiers & Qt::ShiftModifier ? upper : character;
  return {static_cast<int>(upper), modifiers, isCommand ? QString() : QString::fromUcs4(&typed, 1)};
}

int FunctionKey(const QString& name) {
  for (int number = 1; number <= kFunctionKeys; ++number) {
    if (name == QStringLiteral("F%1").arg(number)) return Qt::Key_F1 + number - 1;
  }
  ThrowBadKeys();
}

KeyStroke NamedStroke(const QString& name, Qt::KeyboardModifiers modifiers) {
  const QString capitals = name.toUpper();
  const auto* named = std::find_if(kNamedKeys.begin(), kNamedKeys.end(), [&](const NamedKey& key) {
    return capitals == QLatin1String(key.name);
  });
  if (named == kNamedKeys.end()) return {FunctionKey(capitals), modifiers, {}};
  return {named->key, modifiers, QString::fromLatin1(named->text)};
}

class KeyParser {
 public:
  explicit KeyParser(std::string_view keys) : keys_(ToQString(keys).toStdU32String()) {}

  std::vector<KeyStroke> All() {
    while (next_ < keys_.size()) Item(Qt::NoModifier);
    return std::move(strokes_);
  }

 private:
  // One character, named key or group, with what is held down for it.
  void Item(Qt::KeyboardModifiers held) {
    char32_t character = Take();
    while (ModifierOf(character) != Qt::NoModifier) {
      held |= ModifierOf(character);
      character = Take();
    }
    if (character == U'(') {
      Group(held);
    } else if (character == U'{') {
      Named(held);
    } else if (character == U')' || character == U'}') {
      ThrowBadKeys();
    } else {
      strokes_.push_back(CharacterKey(character, held));
    }
  }

  void Group(Qt::KeyboardModifiers held) {
    if (++depth_ > kDeepest) ThrowBadKeys();
    while (Peek() != U')') Item(held);
    Take();
    --depth_;
  }

  void Named(Qt::KeyboardModifiers held) {
    // The name has at least one character, so that "{}}" is a closing bracket.
    std::u32string name(1, Take());
    while (Peek() != U'}') name += Take();
    Take();
    strokes_.push_back(name.size() == 1 ? CharacterKey(name[0], held)
                                        : NamedStroke(QString::fromStdU32String(name), held));
  }

  char32_t Peek() const {
    if (next_ >= keys_.size()) ThrowBadKeys();
    return keys_[next_];
  }

  char32_t Take() {
    const char32_t character = Peek();
    ++next_;
    return character;
  }

  static constexpr int kDeepest = 100;

  std::u32string keys_;
  std::size_t next_ = 0;
  int depth_ = 0;
  std::vector<KeyStroke> strokes_;
};

}  // namespace

std::vector<KeyStroke> ParseKeys(std::string_view keys) { return KeyParser(keys).All(); }

}  // namespace tagsmith
