#pragma once

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "services/Form.h"

namespace tagsmith {

/// Like controls of one name, told apart by their index, counted from 0.
template <class T>
class ControlArray {
 public:
  /// `arguments` go to each control's constructor between its name and its index.
  template <class... Args>
  ControlArray(Form& form, const std::string& name, int count, const Args&... arguments) {
    for (int i = 0; i < count; ++i) {
      controls_.push_back(std::make_unique<T>(form, name, arguments..., i));
    }
  }

  /// One control for each caption, which goes to its constructor.
  ControlArray(Form& form, const std::string& name, std::initializer_list<const char*> captions) {
    for (const char* caption : captions) {
      controls_.push_back(std::make_unique<T>(form, name, caption, Count()));
    }
  }

  int Count() const { return static_cast<int>(controls_.size()); }
  T& operator()(int index) const { return *controls_.at(static_cast<std::size_t>(index)); }

  /// Calls `handler(index)` for the event `event` of each control.
  template <class EventType, class Handler>
  void Bind(EventType T::*event, Handler handler) {
    for (int i = 0; i < Count(); ++i) {
      (*this)(i).*event = [handler, i] { handler(i); };
    }
  }

 private:
  std::vector<std::unique_ptr<T>> controls_;
};

}  // namespace tagsmith
