#include "platform/controls/Access.h"

#include <QAbstractButton>
#include <QAccessibleWidget>

namespace {

class AccessInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    AccessInterface(QWidget* control, const Access& access) : QAccessibleWidget(control), access_(access) {}

    QAccessible::Role role() const override { return access_.role; }
    QString text(QAccessible::Text kind) const override {
        const bool named = kind == QAccessible::Name && access_.name;
        return named ? access_.name() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (access_.chosen) {
            const bool isButton = access_.role == QAccessible::RadioButton, isChosen = access_.chosen();
            state.checkable = isButton;
            state.checked = isButton && isChosen;
            state.selectable = !isButton;
            state.selected = !isButton && isChosen;
        }
        return state;
    }

    // Decoration and hidden controls are not children.
    int childCount() const override { return static_cast<int>(Children().size()); }
    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(Children().value(index));
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(Children().indexOf(child->object()));
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (access_.press && widget()->isEnabled()) names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& action) override {
        if (action != pressAction())
            QAccessibleWidget::doAction(action);
        else if (access_.press && widget()->isEnabled())
            access_.press();
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface && access_.percent)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return access_.percent(); }
    void setCurrentValue(const QVariant&) override {}
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override { return 100; }
    QVariant minimumStepSize() const override { return 1; }

private:
    [[nodiscard]] QObjectList Children() const {
        QObjectList children = widget()->children();
        children.removeIf([this](const QObject* child) {
            const Access* access = AccessOf(child);
            return !child->isWidgetType() || (access && access->role == QAccessible::NoRole) ||
                   !widget()->rect().intersects(static_cast<const QWidget*>(child)->geometry());
        });
        return children;
    }

    const Access& access_;
};

QAccessibleInterface* Describe(const QString& /*className*/, QObject* object) {
    const Access* access = AccessOf(object);
    if (!access || !access->name) return nullptr;
    return new AccessInterface(static_cast<QWidget*>(object), *access);
}

}  // namespace

const Access* AccessOf(const QObject* object) {
    const auto* described = dynamic_cast<const HasAccess*>(object);
    return described ? &described->access : nullptr;
}

bool IsPressable(const QWidget& control) {
    const Access* access = AccessOf(&control);
    return (access && access->press) || qobject_cast<const QAbstractButton*>(&control);
}

void InstallAccess() {
    QAccessible::installFactory(Describe);
}
