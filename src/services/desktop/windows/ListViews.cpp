#include "services/desktop/windows/ListViews.h"

#include <QStyle>
#include <algorithm>

#include "services/desktop/system/TextConversion.h"
#include "services/desktop/windows/TwipsScale.h"

namespace tagsmith {
namespace {

// The last name in a path; a drive's root as it is.
QString NameIn(const std::string& path) {
  const std::size_t slash = path.rfind('\\');
  const bool isRoot = slash == std::string::npos || slash + 1 == path.size();
  return ToQString(isRoot ? path : path.substr(slash + 1));
}

}  // namespace

// --- ListBox ---

ListBoxView::ListBoxView(ListBox& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host),
      list_(new EntryList({.count = [&control] { return control.ListCount(); },
                           .text = [&control](int row) { return ToQString(control.List(row)); }},
                          /*opensOnEnter=*/false, parent)) {
  Update(Property::kSelection);
  list_->onGesture = [this](const ListGesture& gesture) { Take(gesture); };
  Adopt(list_);
}

ListBoxView::~ListBoxView() {
  if (Widget() == nullptr) return;
  list_->onGesture = nullptr;
  list_->Entries().Forget();
}

void ListBoxView::Update(Property property) {
  if (property == Property::kItems) list_->Entries().Reset();
  list_->ShowRow(model_.ListIndex());
}

void ListBoxView::Take(const ListGesture& gesture) {
  Host().Act([this, gesture] {
    const int row = list_->CurrentRow();
    if (gesture.kind == ListGesture::Kind::kOpen) {
      if (gesture.row >= 0) model_.DoubleClick(gesture.row);
    } else if (gesture.kind == ListGesture::Kind::kPress && gesture.row >= 0) {
      model_.Select(gesture.row);
    } else if (row != model_.ListIndex()) {
      model_.Select(row);
    }
    Update(Property::kSelection);
  });
}

// --- DirListBox ---

DirListView::DirListView(DirListBox& control, ViewHost& host, QWidget& parent)
    : ViewOf(control, host),
      closed_(parent.style()->standardIcon(QStyle::SP_DirIcon)),
      open_(parent.style()->standardIcon(QStyle::SP_DirOpenIcon)),
      list_(new EntryList(Source(), /*opensOnEnter=*/true, parent)) {
  Update(Property::kSelection);
  list_->onGesture = [this](const ListGesture& gesture) { Take(gesture); };
  Adopt(list_);
  Resized();
}

DirListView::~DirListView() {
  if (Widget() == nullptr) return;
  list_->onGesture = nullptr;
  list_->Entries().Forget();
}

EntrySource DirListView::Source() {
  return {.count = [this] { return RowOf(model_.ListCount()); },
          .text = [this](int row) { return NameIn(model_.List(IndexOf(row))); },
          .icon = [this](int row) { return IndexOf(row) < 0 ? open_ : closed_; },
          .depth = [this](int row) { return std::min(row, RowOf(0)); }};
}

void DirListView::Update(Property property) {
  if (property == Property::kItems) list_->Entries().Reset();
  list_->ShowRow(RowOf(model_.ListIndex()));
}

void DirListView::Resized() { list_->setMinimumWidth(Host().Scale().ToPixels(model_.Width())); }

void DirListView::Take(const ListGesture& gesture) {
  Host().Act([this, gesture] {
    const int current = IndexOf(list_->CurrentRow());
    if (gesture.kind == ListGesture::Kind::kOpen) {
      if (gesture.row >= 0) model_.Open(IndexOf(gesture.row));
    } else if (gesture.kind == ListGesture::Kind::kPress && gesture.row >= 0) {
      model_.Select(IndexOf(gesture.row));
    } else if (current != model_.ListIndex()) {
      model_.Select(current);
    }
    Update(Property::kSelection);
  });
}

}  // namespace tagsmith
