#pragma once
// A main window started as at program start, and its File menu driven through
// the file dialog and the message boxes, for the save, open and auto-save tests.
#include <memory>
#include <QtTest>
#include <QDir>
#include "mainwindow/FormInitial.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/DialogDriver.h"

inline QString native(const QString& path) { return QDir::toNativeSeparators(path); }

inline QStringList folderFiles(const QString& folder) { return QDir(folder).entryList(QDir::Files, QDir::Name); }

inline auto answer(QMessageBox::StandardButton button)
{
    return [button](QWidget* w) { DialogDriver::press(w, button); };
}

class MainWindowSession {
public:
    std::unique_ptr<FormInitial> form;

    // Starts a new main window; the machine's address is fixed so that files compare.
    void start()
    {
        form = std::make_unique<FormInitial>();
        form->Form_Load();
        form->show();
        gMainConfig.m_strLocalIPAddress = QStringLiteral("192.168.1.10");
    }
    // Drops the window without closing it, so no auto-save is written.
    void stop()
    {
        gDirty = false;
        if (form) {
            form->hide();
            form.reset();
        }
    }
    QAction* menu(const char* name) { return form->findChild<QAction*>(QString::fromLatin1(name)); }

    // Save As through the menu and the file dialog.
    void saveAs(const QString& path)
    {
        DialogDriver driver;
        driver.next([path](QWidget* w) { DialogDriver::chooseFile(w, path); });
        menu("SaveAs")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
    }
    // Open through the menu and the file dialog; the texts of the message boxes
    // that follow (expectedMessages of them) are gathered into `messages`.
    void open(const QString& path, QStringList* messages = nullptr, int expectedMessages = 0)
    {
        DialogDriver driver;
        driver.next([path](QWidget* w) { DialogDriver::chooseFile(w, path); });
        for (int i = 0; i < expectedMessages; ++i)
            driver.next([messages](QWidget* w) {
                *messages << DialogDriver::text(w);
                DialogDriver::press(w, QMessageBox::Ok);
            });
        menu("Open")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
    }
};
