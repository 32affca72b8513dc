#pragma once
// A main window on its device panel, and its device dialogs opened from the
// panel's buttons as an operator opens them: the count picked in its combo box,
// the button clicked, the dialog and the message boxes answered in turn.
#include <QtTest>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include "mainwindow/MainWindowSession.h"
#include "model/CMainConfig.h"
#include "support/DialogDriver.h"
#include "support/TestData.h"

// What a message box showed.
struct SeenBox {
    QString text;
    QString title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
};

// Notes the box into `seen` and answers OK.
inline DialogDriver::Action noteBox(SeenBox* seen)
{
    return [seen](QWidget* w) {
        auto* box = qobject_cast<QMessageBox*>(w);
        if (!box)
            throw std::runtime_error("expected a message box");
        seen->text = box->text();
        seen->title = box->windowTitle();
        seen->icon = box->icon();
        DialogDriver::press(w, QMessageBox::Ok);
    };
}

// Lines as a text file holds them: each ended by CR LF, in the system code page.
inline QByteArray fileLines(const QStringList& lines)
{
    QByteArray bytes;
    for (const QString& line : lines)
        bytes += line.toLatin1() + "\r\n";
    return bytes;
}

class DeviceDialogSession : public MainWindowSession {
public:
    QTemporaryDir dir;

    // A new performance on the device panel.
    void fresh()
    {
        gDirty = false;
        form->New_Click();
        form->CommandRules_Click();
        gDirty = false;
    }
    // The count of a device picked in its combo box of the panel.
    void pickCount(const char* combo, int count)
    {
        DialogDriver::pick(form.get(), QString::fromLatin1(combo), QString::number(count));
    }
    // Clicks a button of the panel; the actions answer the dialogs that come, in order.
    bool click(const char* button, const QList<DialogDriver::Action>& actions, QString* error = nullptr)
    {
        DialogDriver driver;
        for (const auto& a : actions)
            driver.next(a);
        DialogDriver::click(form.get(), QString::fromLatin1(button));
        const bool ok = driver.finished();
        if (error)
            *error = driver.error();
        return ok;
    }
    // Save As into the test folder; the bytes of the main file written.
    QByteArray saveAsAndRead(const QString& name)
    {
        const QString path = native(dir.filePath(name));
        saveAs(path);
        return ReadBytes(path);
    }
    // The performance's folder beside the main file `name` (with its .qel).
    QString performanceFile(const QString& name, const QString& file)
    {
        QString stem = name;
        stem.chop(4);
        return dir.filePath(stem + QStringLiteral("/") + file);
    }
    // A new performance, then the file opened again.
    void reopen(const QString& name)
    {
        fresh();
        open(native(dir.filePath(name)));
    }
};

// The hand-shake of a device dialog with its opener, the dialog opened alone:
// m_bUpdate set beforehand, `act` run on the dialog. Gives m_bUpdate as the
// dialog showed it after loading, and as it stood when the dialog closed.
struct UpdateFlag {
    bool atLoad = true;
    bool atClose = false;
    QString error;
};
inline UpdateFlag updateFlagAround(QDialog& dialog, const std::function<void(QWidget*)>& act)
{
    UpdateFlag flag;
    gMainConfig.m_bUpdate = true;
    DialogDriver driver;
    driver.next([&](QWidget* d) {
        flag.atLoad = gMainConfig.m_bUpdate;
        act(d);
    });
    dialog.exec();
    driver.finished();
    flag.error = driver.error();
    flag.atClose = gMainConfig.m_bUpdate;
    return flag;
}

// --- acting on a dialog --------------------------------------------------------

template <typename T>
T* control(QWidget* dialog, const QString& name) { return DialogDriver::find<T>(dialog, name); }

inline QString row(const char* array, int i) { return QStringLiteral("%1(%2)").arg(QString::fromLatin1(array)).arg(i); }

inline void typeIn(QWidget* dialog, const QString& name, const QString& text) { DialogDriver::type(dialog, name, text); }

inline void clickOn(QWidget* dialog, const QString& name) { DialogDriver::click(dialog, name); }

inline QString textOf(QWidget* dialog, const QString& name) { return control<QLineEdit>(dialog, name)->text(); }

inline bool shown(QWidget* dialog, const QString& name) { return control<QWidget>(dialog, name)->isVisible(); }
