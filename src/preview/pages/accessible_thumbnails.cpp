#include "preview/pages/accessible_thumbnails.h"

#include <QAccessibleWidget>
#include <map>

#include "preview/pages/thumbnails.h"

namespace tarvis {
namespace {

// One page in the list. The toolkit's register of interfaces owns it.
class AccessibleThumbnail : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleThumbnail(Thumbnails& list, int page) : list_(list), page_(page) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  bool isValid() const override { return page_ < list_.Count(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return list_.window()->windowHandle(); }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&list_); }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? Thumbnails::tr("Page %1").arg(page_ + 1) : QString();
  }
  QRect rect() const override {
    const QRect place = list_.PlaceOf(page_);
    return {list_.viewport()->mapToGlobal(place.topLeft()), place.size()};
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.selectable = true;
    state.focusable = true;
    state.selected = page_ == list_.Current();
    state.focused = state.selected && list_.hasFocus();
    state.invisible = !list_.isVisible();
    state.offscreen = !list_.viewport()->rect().intersects(list_.PlaceOf(page_));
    return state;
  }

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override {
    if (name == pressAction()) emit list_.PageChosen(page_);
  }
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  Thumbnails& list_;
  int page_;
};

class AccessibleThumbnails : public QAccessibleWidget {
 public:
  explicit AccessibleThumbnails(Thumbnails& list)
      : QAccessibleWidget(&list, QAccessible::List), list_(list) {}
  ~AccessibleThumbnails() override {
    for (const auto& [page, id] : pages_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return list_.Count(); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    const auto [entry, isNew] = pages_.try_emplace(index);
    if (isNew)
      entry->second = QAccessible::registerAccessibleInterface(new AccessibleThumbnail(list_, index));
    return QAccessible::accessibleInterface(entry->second);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    for (const auto& [page, id] : pages_) {
      if (QAccessible::accessibleInterface(id) == child) return page;
    }
    return -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int page = 0; page < childCount(); ++page) {
      const QRect place = list_.PlaceOf(page);
      if (place.contains(list_.viewport()->mapFromGlobal(QPoint(x, y)))) return child(page);
    }
    return nullptr;
  }
  QAccessibleInterface* focusChild() const override {
    return list_.hasFocus() ? child(list_.Current()) : nullptr;
  }

 private:
  Thumbnails& list_;
  mutable std::map<int, QAccessible::Id> pages_;  // made when they are asked for
};

QAccessibleInterface* Make(const QString& /*className*/, QObject* object) {
  auto* list = qobject_cast<Thumbnails*>(object);
  return list == nullptr ? nullptr : new AccessibleThumbnails(*list);
}

}  // namespace

void OfferAccessibleThumbnails() {
  QAccessible::installFactory(Make);
}

}  // namespace tarvis
