#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/Control.h"

namespace tagsmith {

enum class TabSide { kTop, kLeft, kBottom };

/// A strip of tabs, with a page for controls behind each (`Control::SetContainer`). Writing `Tab`
/// with a new value raises `onClick` with the previous tab inside the statement.
class SSTab : public Control {
 public:
  SSTab(Form& form, std::string name, TabSide side, std::vector<std::string> captions);

  TabSide Side() const { return side_; }
  int Tabs() const { return static_cast<int>(captions_.size()); }
  /// A tab's caption; `&` marks an access key, `&&` is an ampersand.
  const std::string& TabCaption(int index) const;
  void SetTabCaption(int index, std::string_view caption);
  /// Whether the captions are shown as they are, an ampersand in them being itself (file names).
  bool PlainCaptions() const { return plainCaptions_; }
  void SetPlainCaptions(bool plain) { plainCaptions_ = plain; }
  int Tab() const { return tab_; }
  /// A tab that is not there is passed over.
  void SetTab(int tab);

  Event<int> onClick;  ///< The tab that was chosen before.

  /// The user chooses a tab; the present one again does nothing.
  void Select(int tab);

 private:
  TabSide side_;
  std::vector<std::string> captions_;
  bool plainCaptions_ = false;
  int tab_ = 0;
};

/// A status bar in simple style: one text.
class StatusBar : public Control {
 public:
  StatusBar(Form& form, std::string name);

  const std::string& SimpleText() const { return text_; }
  void SetSimpleText(std::string_view text);

 private:
  std::string text_;
};

}  // namespace tagsmith
