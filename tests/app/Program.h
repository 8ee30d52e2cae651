#pragma once

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "app/Composition.h"

namespace tagsmith {

inline std::string ReadBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

/// A folder of a user's own: pages and settings, which outlive one run of the program.
class UserFolder {
 public:
  std::filesystem::path operator/(const std::string& name) const {
    return std::filesystem::path(folder_.path().toStdString()) / name;
  }
  std::string SystemPath(const std::string& name) const {
    return DriveMap::ToSystemPath((*this / name).string());
  }

 private:
  QTemporaryDir folder_;
};

/// The user's answers while it lives: message boxes by their default button, what they said kept;
/// all other dialogs by Cancel.
class Answers {
 public:
  Answers() {
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
      QWidget* dialog = QApplication::activeModalWidget();
      if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
        texts_.push_back(box->text().toStdString());
        box->accept();
      } else if (auto* other = qobject_cast<QDialog*>(dialog)) {
        other->reject();
      }
    });
    timer_.start(20);
  }

  const std::vector<std::string>& Texts() const { return texts_; }

 private:
  QTimer timer_;
  std::vector<std::string> texts_;
};

/// Acts once, as the user does, in the next modal window of that class.
template <class Window>
class WhenAsked {
 public:
  explicit WhenAsked(const std::function<void(Window&)>& act) {
    timer_.callOnTimeout([this, act] {
      auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
      if (window == nullptr) return;
      timer_.stop();
      act(*window);
    });
    timer_.start(5);
  }

 private:
  QTimer timer_;
};

/// One run of the whole program in a real window, started with a command tail.
class Program {
 public:
  explicit Program(const UserFolder& user, std::vector<std::string> arguments = {})
      : arguments_(std::move(arguments)),
        pointers_(Pointers(arguments_)),
        composition_(static_cast<int>(pointers_.size()), pointers_.data(),
                     (user / "settings.json").string()) {
    composition_.Start();
    QApplication::processEvents();
  }

  frmMain& Form() { return composition_.MainForm(); }
  Application& App() { return composition_.App(); }

 private:
  static std::vector<const char*> Pointers(const std::vector<std::string>& arguments) {
    std::vector<const char*> pointers = {"tagsmith"};
    for (const std::string& argument : arguments) pointers.push_back(argument.c_str());
    return pointers;
  }

  std::vector<std::string> arguments_;
  std::vector<const char*> pointers_;
  Composition composition_;
};

}  // namespace tagsmith
