#include "support/DialogDriver.h"
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTreeWidget>
#include "support/ModuleGUI.h"

DialogDriver::DialogDriver(int timeoutMs) : m_timeoutMs(timeoutMs)
{
    // Dialogs already open when the driver is made are not ours to handle.
    for (QWidget* w : QApplication::topLevelWidgets())
        if (w->isVisible() && w->isModal())
            m_preexisting.append(w);
    m_timer.setInterval(10);
    connect(&m_timer, &QTimer::timeout, this, &DialogDriver::poll);
    m_timer.start();
    m_idleSince = GetTickCount();
}

DialogDriver::~DialogDriver() { m_timer.stop(); }

DialogDriver& DialogDriver::next(Action action)
{
    m_actions.append(std::move(action));
    m_idleSince = GetTickCount();
    return *this;
}

bool DialogDriver::finished()
{
    QElapsedTimer clock;
    clock.start();
    while (!m_actions.isEmpty() && clock.elapsed() < m_timeoutMs)
        QTest::qWait(10);
    if (!m_actions.isEmpty()) {
        m_errors << QStringLiteral("%1 expected dialog(s) never came").arg(m_actions.size());
        m_actions.clear();
    }
    return m_errors.isEmpty();
}

void DialogDriver::poll()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || !modal->isVisible()) {
        m_idleSince = GetTickCount();
        return;
    }
    for (const auto& old : m_preexisting)
        if (old == modal) {
            m_idleSince = GetTickCount();
            return;
        }
    for (const auto& handled : m_handled)
        if (handled == modal) {
            // Handled but still open: its action did not close it.
            if (m_actions.isEmpty() && GetTickCount() - m_idleSince > m_timeoutMs)
                failAndClose(modal, QStringLiteral("dialog \"%1\" stayed open").arg(modal->windowTitle()));
            return;
        }
    if (m_actions.isEmpty()) {
        // A dialog nobody expected: give it the time-out, then close it.
        if (GetTickCount() - m_idleSince > m_timeoutMs)
            failAndClose(modal, QStringLiteral("unexpected dialog \"%1\" %2").arg(modal->windowTitle(), text(modal).replace(QStringLiteral("\r\n"), QStringLiteral(" "))));
        return;
    }
    m_handled.append(modal);
    m_seen << modal->windowTitle();
    Action action = m_actions.takeFirst();
    m_idleSince = GetTickCount();
    // Run the action from its own event, so that this poll is free to see a
    // dialog that the action itself opens (a timer does not re-enter its slot).
    QPointer<QWidget> target(modal);
    QTimer::singleShot(0, this, [this, action, target] {
        if (!target)
            return;
        try {
            action(target);
        } catch (const std::exception& e) {
            if (target)
                failAndClose(target, QString::fromUtf8(e.what()));
        }
        m_idleSince = GetTickCount();
    });
}

void DialogDriver::failAndClose(QWidget* dialog, const QString& why)
{
    m_errors << why;
    if (auto* d = qobject_cast<QDialog*>(dialog))
        d->reject();
    else
        dialog->close();
}

void DialogDriver::click(QWidget* root, const QString& name)
{
    auto* button = find<QAbstractButton>(root, name);
    if (!button->isVisible() || !button->isEnabled())
        throw std::runtime_error(("cannot click " + name + ": hidden or disabled").toStdString());
    QTest::mouseClick(button, Qt::LeftButton);
}

void DialogDriver::type(QWidget* root, const QString& name, const QString& text)
{
    QWidget* w = find<QWidget>(root, name);
    QLineEdit* edit = qobject_cast<QLineEdit*>(w);
    if (auto* combo = qobject_cast<QComboBox*>(w))
        edit = combo->lineEdit();
    if (!edit)
        throw std::runtime_error(("cannot type into " + name).toStdString());
    edit->setFocus();
    edit->selectAll();
    if (text.isEmpty())
        QTest::keyClick(edit, Qt::Key_Delete);
    else
        QTest::keyClicks(edit, text);
}

void DialogDriver::pick(QWidget* root, const QString& name, const QString& entry)
{
    QWidget* w = find<QWidget>(root, name);
    if (auto* combo = qobject_cast<QComboBox*>(w)) {
        const int index = combo->findText(entry, Qt::MatchExactly);
        if (index < 0)
            throw std::runtime_error(("no entry \"" + entry + "\" in " + name).toStdString());
        combo->setCurrentIndex(index);
        emit combo->activated(index);
        emit combo->textActivated(combo->itemText(index));
        return;
    }
    if (auto* list = qobject_cast<QListWidget*>(w)) {
        const auto items = list->findItems(entry, Qt::MatchExactly);
        if (items.isEmpty())
            throw std::runtime_error(("no entry \"" + entry + "\" in " + name).toStdString());
        list->scrollToItem(items.first());
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(items.first()).center());
        return;
    }
    if (auto* tree = qobject_cast<QTreeWidget*>(w)) {
        const auto items = tree->findItems(entry, Qt::MatchExactly);
        if (items.isEmpty())
            throw std::runtime_error(("no row \"" + entry + "\" in " + name).toStdString());
        tree->scrollToItem(items.first());
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(items.first()).center());
        return;
    }
    throw std::runtime_error(("cannot pick in " + name).toStdString());
}

void DialogDriver::press(QWidget* messageBox, QMessageBox::StandardButton button)
{
    auto* box = qobject_cast<QMessageBox*>(messageBox);
    if (!box)
        throw std::runtime_error(("not a message box: " + messageBox->windowTitle()).toStdString());
    QAbstractButton* b = box->button(button);
    if (!b)
        throw std::runtime_error(("the message box has no such button: " + box->text()).toStdString());
    QTest::mouseClick(b, Qt::LeftButton);
}

QString DialogDriver::text(QWidget* messageBox)
{
    auto* box = qobject_cast<QMessageBox*>(messageBox);
    return box ? box->text() : QString();
}

void DialogDriver::chooseFile(QWidget* fileDialog, const QString& path)
{
    auto* dialog = qobject_cast<QFileDialog*>(fileDialog);
    if (!dialog)
        throw std::runtime_error("not a file dialog");
    auto* edit = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (!edit)
        throw std::runtime_error("the file dialog has no name box");
    // The whole path at once, so that no completion pop-up stands in the way, then Enter.
    edit->setFocus();
    edit->setText(path);
    QTest::keyClick(edit, Qt::Key_Return);
}

void DialogDriver::cancel(QWidget* dialog)
{
    if (auto* box = qobject_cast<QMessageBox*>(dialog); box && box->escapeButton()) {
        QTest::mouseClick(box->escapeButton(), Qt::LeftButton);
        return;
    }
    if (auto* d = qobject_cast<QDialog*>(dialog))
        d->reject();
    else
        dialog->close();
}
