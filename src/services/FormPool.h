#pragma once

#include <map>
#include <memory>
#include <typeindex>
#include <utility>
#include <vector>

namespace tagsmith {

class Form;

/// The forms of a run: the one automatic instance of each class, which of all forms has the
/// keyboard, and the unloaded ones that still have a handler to finish.
class FormPool {
 public:
  FormPool();
  ~FormPool();
  FormPool(const FormPool&) = delete;
  FormPool& operator=(const FormPool&) = delete;

  /// The automatic instance of `T`, made with `arguments` and loaded if there is none. It lives
  /// until it is unloaded; the next reach makes a new one.
  template <class T, class... Args>
  T& Reach(Args&&... arguments) {
    if (Form* present = Find(typeid(T))) return static_cast<T&>(*present);
    auto fresh = std::make_unique<T>(std::forward<Args>(arguments)...);
    T& form = *fresh;
    Keep(typeid(T), std::move(fresh));
    return form;
  }

  /// The automatic instance of `T` if it is loaded, else null.
  template <class T>
  T* Loaded() const {
    return static_cast<T*>(Find(typeid(T)));
  }

  /// Unloads every automatic instance that is there. One whose Unload event refuses stays.
  void UnloadAll();

  /// The form that has the keyboard, or had it last when another program has it now.
  Form* Active() const { return active_; }
  void SetActive(Form* form) { active_ = form; }

  /// An object whose lifetime is one running handler or modal form: while one lives, unloaded
  /// forms stay alive.
  class Busy {
   public:
    explicit Busy(FormPool& pool);
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

   private:
    FormPool& pool_;
  };

 private:
  friend class Form;

  Form* Find(std::type_index type) const;
  void Keep(std::type_index type, std::unique_ptr<Form> form);
  void Retire(Form& form);
  void Forget(Form& form);

  std::map<std::type_index, std::unique_ptr<Form>> instances_;
  std::vector<std::unique_ptr<Form>> retired_;
  Form* active_ = nullptr;
  int busy_ = 0;
};

}  // namespace tagsmith
