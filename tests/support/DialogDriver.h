#pragma once
// Acts on the modal dialogs and message boxes that the code under test opens,
// as a person would: find a control by objectName, click, type, pick, press a
// message box button. Arm it with the actions, in the order the dialogs will
// come, before the call that opens them:
//
//   DialogDriver driver;
//   driver.next([](QWidget* box) { DialogDriver::press(box, QMessageBox::Cancel); });
//   form.New_Click();
//   QVERIFY2(driver.finished(), qPrintable(driver.error()));
//
// A dialog that comes with no action left, or an action whose dialog does not
// come, fails the test instead of hanging it: after the time-out the driver
// closes any modal dialog it finds and records the failure.
#include <functional>
#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <stdexcept>

class QComboBox;

class DialogDriver : public QObject {
    Q_OBJECT
public:
    using Action = std::function<void(QWidget*)>;

    explicit DialogDriver(int timeoutMs = 10000);
    ~DialogDriver() override;

    // Queues an action for the next modal dialog that opens.
    DialogDriver& next(Action action);

    // Lets the event queue run until every queued action has run or the time-out;
    // true when all ran and no unexpected dialog came.
    bool finished();
    QString error() const { return m_errors.join(QStringLiteral("; ")); }
    // Titles of the dialogs handled so far, in order.
    QStringList seen() const { return m_seen; }

    // --- acting on a dialog (they throw std::runtime_error when the control is missing) ---
    template <typename T = QWidget>
    static T* find(QWidget* root, const QString& name)
    {
        T* w = root->objectName() == name ? qobject_cast<T*>(root) : nullptr;
        if (!w)
            w = root->findChild<T*>(name);
        if (!w)
            throw std::runtime_error(("no control named " + name).toStdString());
        return w;
    }
    static void click(QWidget* root, const QString& name);
    static void type(QWidget* root, const QString& name, const QString& text);   // replaces the text
    static void pick(QWidget* root, const QString& name, const QString& entry);  // combo or list entry
    static void press(QWidget* messageBox, QMessageBox::StandardButton button);
    static QString text(QWidget* messageBox);                                    // a message box's text
    // In a file dialog: types the path into the name box and accepts.
    static void chooseFile(QWidget* fileDialog, const QString& path);
    static void cancel(QWidget* dialog);                                          // Escape / reject

private:
    void poll();
    void failAndClose(QWidget* dialog, const QString& why);

    QTimer m_timer;
    int m_timeoutMs;
    qint64 m_idleSince = 0;
    QList<Action> m_actions;
    QList<QPointer<QWidget>> m_preexisting;   // open before the driver was made: not ours
    QList<QPointer<QWidget>> m_handled;       // dialogs an action ran on
    QStringList m_errors;
    QStringList m_seen;
};
