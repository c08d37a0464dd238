#include "ui/qt/accessible_list.h"

#include <algorithm>

#include "ui/qt/look.h"

namespace ui::qt {

bool AccessibleEntry::isValid() const {
    return list != nullptr && index < static_cast<int>(list->Model().Entries().size());
}

QAccessibleInterface* AccessibleEntry::parent() const {
    return QAccessible::queryAccessibleInterface(list);
}

QString AccessibleEntry::text(QAccessible::Text kind) const {
    return isValid() && kind == QAccessible::Name ? ToQt(list->Model().Entry(index)) : QString();
}

QRect AccessibleEntry::rect() const {
    if (!isValid()) return {};
    const QRect row = list->RowRect(index);
    return row.isEmpty() ? row : QRect(list->viewport()->mapToGlobal(row.topLeft()), row.size());
}

QAccessible::State AccessibleEntry::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.selectable = true;
    state.selected = list->Model().Selected() == index;
    state.focusable = true;
    state.focused = list->hasFocus() && list->Marked() == index;
    state.disabled = !list->isEnabled();
    state.invisible = !list->isVisible();
    state.offscreen = list->RowRect(index).isEmpty();
    return state;
}

void* AccessibleEntry::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

void AccessibleEntry::doAction(const QString& name) {
    if (name == pressAction() && isValid() && list->isEnabled()) list->Click(index);
}

AccessibleList::~AccessibleList() {
    std::ranges::for_each(entries, QAccessible::deleteAccessibleInterface);
}

int AccessibleList::childCount() const {
    return static_cast<int>(list.Model().Entries().size());
}

QAccessibleInterface* AccessibleList::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    for (int made = static_cast<int>(entries.size()); made <= index; ++made) {
        entries.push_back(QAccessible::registerAccessibleInterface(new AccessibleEntry(list, made)));
    }
    return QAccessible::accessibleInterface(entries[static_cast<std::size_t>(index)]);
}

QAccessibleInterface* AccessibleList::childAt(int x, int y) const {
    for (int index = 0; index < childCount(); ++index) {
        if (QAccessibleInterface* entry = child(index); entry->rect().contains(x, y)) return entry;
    }
    return nullptr;
}

int AccessibleList::indexOfChild(const QAccessibleInterface* entry) const {
    for (int index = 0; index < childCount(); ++index) {
        if (child(index) == entry) return index;
    }
    return -1;
}

}  // namespace ui::qt
