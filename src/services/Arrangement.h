#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace tagsmith {

class Control;

/// How the controls of a form stand to each other, without numbers: a tree that the view realises
/// with real layouts. The order of its leaves is the Tab order.
struct Arrangement {
  enum class Kind : std::uint8_t {
    kControl,    ///< One control.
    kRow,        ///< Side by side.
    kColumn,     ///< One above the other.
    kGroup,      ///< A Frame control around its one child.
    kGrid,       ///< Row by row, `columns` to a row: labels and their fields.
    kButtonRow,  ///< Buttons at the form's lower right.
  };

  Kind kind = Kind::kControl;
  Control* control = nullptr;  ///< kControl and kGroup
  int columns = 0;             ///< kGrid
  std::vector<Arrangement> children;

  /// A control stands as a leaf by itself.
  Arrangement(Control& leaf) : control(&leaf) {}  // NOLINT(google-explicit-constructor)
  Arrangement(Kind k, std::vector<Arrangement> c) : kind(k), children(std::move(c)) {}
};

inline Arrangement Row(std::vector<Arrangement> children) {
  return {Arrangement::Kind::kRow, std::move(children)};
}

inline Arrangement Column(std::vector<Arrangement> children) {
  return {Arrangement::Kind::kColumn, std::move(children)};
}

inline Arrangement Group(Control& frame, Arrangement child) {
  std::vector<Arrangement> children;
  children.push_back(std::move(child));
  Arrangement group(Arrangement::Kind::kGroup, std::move(children));
  group.control = &frame;
  return group;
}

inline Arrangement Grid(int columns, std::vector<Arrangement> children) {
  Arrangement grid(Arrangement::Kind::kGrid, std::move(children));
  grid.columns = columns;
  return grid;
}

inline Arrangement ButtonRow(std::vector<Arrangement> buttons) {
  return {Arrangement::Kind::kButtonRow, std::move(buttons)};
}

}  // namespace tagsmith
