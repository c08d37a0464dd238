// A list and its entries for screen readers; pressing an entry is a click on it.
#pragma once

#include <QAccessibleWidget>
#include <QPointer>
#include <vector>

#include "ui/qt/entry_list.h"

namespace ui::qt {

class AccessibleEntry final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleEntry(EntryList& shownIn, int place) : list(&shownIn), index(place) {}

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<EntryList> list;
    int index;
};

class AccessibleList final : public QAccessibleWidget {
public:
    explicit AccessibleList(EntryList& shown) : QAccessibleWidget(&shown, QAccessible::List), list(shown) {}
    ~AccessibleList() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* entry) const override;

private:
    EntryList& list;
    mutable std::vector<QAccessible::Id> entries;  // made when they are first asked for
};

}  // namespace ui::qt
