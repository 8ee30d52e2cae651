#include "services/FormPool.h"

#include "services/Form.h"

namespace tagsmith {

FormPool::FormPool() = default;
FormPool::~FormPool() = default;

Form* FormPool::Find(std::type_index type) const {
  const auto found = instances_.find(type);
  return found == instances_.end() ? nullptr : found->second.get();
}

void FormPool::Keep(std::type_index type, std::unique_ptr<Form> form) {
  Form& kept = *form;
  instances_[type] = std::move(form);
  kept.Load();
}

void FormPool::Retire(Form& form) {
  for (auto it = instances_.begin(); it != instances_.end(); ++it) {
    if (it->second.get() != &form) continue;
    retired_.push_back(std::move(it->second));
    instances_.erase(it);
    return;
  }
}

void FormPool::Forget(Form& form) {
  if (active_ == &form) active_ = nullptr;
}

void FormPool::UnloadAll() {
  const Busy busy(*this);
  std::vector<Form*> loaded;
  for (const auto& [type, form] : instances_) loaded.push_back(form.get());
  for (Form* form : loaded) form->Unload();
}

FormPool::Busy::Busy(FormPool& pool) : pool_(pool) { ++pool_.busy_; }

FormPool::Busy::~Busy() {
  if (--pool_.busy_ > 0) return;
  // Destroying a form can run code of its view; what it retires then waits for the next round.
  const std::vector<std::unique_ptr<Form>> finished = std::move(pool_.retired_);
  pool_.retired_.clear();
}

}  // namespace tagsmith
