#include "devices/ModuleScrollBar.h"
#include <QAbstractButton>
#include <QCheckBox>
#include <QChildEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTreeWidget>
#include <QVariant>
#include "support/RuntimeError.h"

QString TypeName(const QWidget* control)
{
    if (auto* bar = qobject_cast<const QScrollBar*>(control))
        return bar->orientation() == Qt::Vertical ? QStringLiteral("VScrollBar") : QStringLiteral("HScrollBar");
    if (qobject_cast<const QStatusBar*>(control))
        return QStringLiteral("StatusBar");
    if (qobject_cast<const QGroupBox*>(control))
        return QStringLiteral("Frame");
    if (qobject_cast<const QLabel*>(control))
        return QStringLiteral("Label");
    if (qobject_cast<const QLineEdit*>(control) || qobject_cast<const QPlainTextEdit*>(control))
        return QStringLiteral("TextBox");
    if (qobject_cast<const QComboBox*>(control))
        return QStringLiteral("ComboBox");
    if (qobject_cast<const QPushButton*>(control))
        return QStringLiteral("CommandButton");
    if (qobject_cast<const QCheckBox*>(control))
        return QStringLiteral("CheckBox");
    if (qobject_cast<const QRadioButton*>(control))
        return QStringLiteral("OptionButton");
    if (qobject_cast<const QListWidget*>(control))
        return QStringLiteral("ListBox");
    if (qobject_cast<const QTreeWidget*>(control))
        return QStringLiteral("ListView");
    return QString::fromLatin1(control->metaObject()->className());
}

QString DefaultText(const QWidget* control)
{
    if (auto* frame = qobject_cast<const QGroupBox*>(control))
        return frame->title();
    if (auto* label = qobject_cast<const QLabel*>(control))
        return label->text();
    if (auto* edit = qobject_cast<const QLineEdit*>(control))
        return edit->text();
    if (auto* edit = qobject_cast<const QPlainTextEdit*>(control))
        return edit->toPlainText();
    if (auto* combo = qobject_cast<const QComboBox*>(control))
        return combo->currentText();
    if (auto* check = qobject_cast<const QCheckBox*>(control))
        return QString::number(check->checkState() == Qt::Checked ? 1 : check->checkState() == Qt::PartiallyChecked ? 2 : 0);
    if (auto* option = qobject_cast<const QRadioButton*>(control))
        return option->isChecked() ? QStringLiteral("True") : QStringLiteral("False");
    if (auto* button = qobject_cast<const QAbstractButton*>(control))
        return button->isDown() ? QStringLiteral("True") : QStringLiteral("False");
    if (auto* bar = qobject_cast<const QScrollBar*>(control))
        return QString::number(bar->value());
    if (auto* list = qobject_cast<const QListWidget*>(control))
        return list->currentItem() ? list->currentItem()->text() : QString();
    if (auto* status = qobject_cast<const QStatusBar*>(control))
        return status->currentMessage();
    throw RuntimeError(QStringLiteral("Object doesn't support this property or method"));
}

namespace {

const char* const kControlOrder = "controlOrder";

// The children of a form in the order they were added. Qt keeps its children
// in stacking order, which raise() changes.
class ControlOrder : public QObject {
public:
    explicit ControlOrder(QWidget* form) : QObject(form) { form->installEventFilter(this); }

    QList<QObject*> children() const
    {
        QList<QObject*> alive;
        for (const auto& child : m_children)
            if (child)
                alive << child.data();
        return alive;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::ChildAdded && watched == parent())
            m_children << static_cast<QChildEvent*>(event)->child();
        return false;
    }

private:
    QList<QPointer<QObject>> m_children;
};

QList<QObject*> childrenInOrder(QWidget* parent)
{
    auto* order = dynamic_cast<ControlOrder*>(parent->property(kControlOrder).value<QObject*>());
    if (!order)
        return parent->children();
    QList<QObject*> children;
    for (QObject* child : order->children())
        if (child->parent() == parent && !children.contains(child))
            children << child;
    for (QObject* child : parent->children())
        if (!children.contains(child))
            children << child;
    return children;
}

void collect(QWidget* parent, QList<QWidget*>& out)
{
    for (QObject* child : childrenInOrder(parent)) {
        auto* w = qobject_cast<QWidget*>(child);
        if (!w || w->isWindow())
            continue;
        out.append(w);
        if (qobject_cast<QGroupBox*>(w))
            collect(w, out);
    }
}

} // namespace

void KeepControlOrder(QWidget* form)
{
    if (!form->property(kControlOrder).value<QObject*>())
        form->setProperty(kControlOrder, QVariant::fromValue<QObject*>(new ControlOrder(form)));
}

QList<QWidget*> FormControls(QWidget* form)
{
    QList<QWidget*> controls;
    collect(form, controls);
    return controls;
}

QString ContainerCaption(const QWidget* control)
{
    const QWidget* container = control->parentWidget();
    if (!container || container->isWindow())
        return QString();
    if (auto* frame = qobject_cast<const QGroupBox*>(container))
        return frame->title();
    throw RuntimeError(QStringLiteral("Object doesn't support this property or method"));
}

void DrawWithoutCaption(QGroupBox* frame)
{
    frame->setFlat(true);
    frame->setAutoFillBackground(true);
    frame->setStyleSheet(QStringLiteral(
        "QGroupBox { border: none; margin: 0px; padding: 0px; background-color: palette(window); }"
        "QGroupBox::title { color: transparent; }"));
}
