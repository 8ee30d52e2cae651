#pragma once

#include <QDialog>
#include <QPointer>

namespace tagsmith {

/// Shows `dialog`, blocks the program's other windows and gives `QDialog::exec`'s result once the
/// user has answered. The hourglass is put aside meanwhile; the window that was active becomes so
/// again. A result of 0 also comes when the dialog was destroyed with its parent.
int RunModal(QDialog& dialog);

/// Owns a dialog whose parent may be destroyed while it runs, and the dialog with it.
template <class T>
class ModalDialog {
 public:
  explicit ModalDialog(T* dialog) : dialog_(dialog) {}
  ~ModalDialog() { delete dialog_.data(); }
  ModalDialog(const ModalDialog&) = delete;
  ModalDialog& operator=(const ModalDialog&) = delete;

  T* operator->() const { return dialog_; }
  T& operator*() const { return *dialog_; }

  /// As `RunModal`; the dialog may be used afterwards only if this is not 0.
  int Run() { return RunModal(*dialog_); }

 private:
  QPointer<T> dialog_;
};

}  // namespace tagsmith
