#include "ui/qt/accessible.h"

#include <QAccessibleWidget>

#include "ui/qt/accessible_list.h"
#include "ui/qt/label_area.h"
#include "ui/qt/look.h"

namespace ui::qt {

namespace {

// The name is read with the caption, because the caption changes. The colour of the caption is the state light, read as the description.
class AccessibleLabel final : public QAccessibleWidget {
public:
    explicit AccessibleLabel(LabelArea& shown)
        : QAccessibleWidget(&shown, shown.Model().Click ? QAccessible::Button : QAccessible::StaticText), area(shown) {}

    QString text(QAccessible::Text kind) const override {
        const Label& label = area.Model();
        const QString name = ToQt(label.Layout.Spoken);
        switch (kind) {
            case QAccessible::Name: return label.Caption().empty() ? name : name + ": " + ToQt(label.Caption());
            case QAccessible::Description: return ToQt(SpokenLight(label));
            default: return QAccessibleWidget::text(kind);
        }
    }

    QStringList actionNames() const override { return area.Model().Click ? QStringList(pressAction()) : QStringList(); }

    void doAction(const QString& name) override {
        if (name == pressAction() && area.isEnabled()) area.Click();
    }

private:
    LabelArea& area;
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
    if (auto* label = dynamic_cast<LabelArea*>(object)) return new AccessibleLabel(*label);
    if (auto* list = dynamic_cast<EntryList*>(object)) return new AccessibleList(*list);
    return nullptr;
}

}  // namespace

void InstallAccessibility() {
    QAccessible::installFactory(MakeInterface);
}

}  // namespace ui::qt
