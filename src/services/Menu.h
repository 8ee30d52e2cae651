#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "services/Control.h"

namespace tagsmith {

/// A menu or menu entry. One without a parent stands in the form's menu bar; the caption "-" is a
/// separator. `onClick` of a menu with entries is raised each time it drops down.
class Menu : public Control {
 public:
  /// `shortcut` is as "Ctrl+N" or "F5", empty for none.
  Menu(Form& form, std::string name, std::string caption, Menu* parent = nullptr,
       std::string shortcut = {}, int index = kNoIndex);

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  /// Whether an ampersand in the caption is itself (paths), instead of marking the access key.
  bool PlainCaption() const { return plainCaption_; }
  void SetPlainCaption(bool plain) { plainCaption_ = plain; }
  const std::string& Shortcut() const { return shortcut_; }
  bool IsSeparator() const { return caption_ == "-"; }
  const std::vector<Menu*>& Entries() const { return entries_; }

  Event<> onClick;

  /// The user chooses the entry or drops the menu down.
  void Click();

 private:
  std::string caption_;
  std::string shortcut_;
  bool plainCaption_ = false;
  std::vector<Menu*> entries_;
};

}  // namespace tagsmith
