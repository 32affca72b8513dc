// Message boxes and file dialogs, answered through the running dialog.
#include <QtTest>
#include <QFileDialog>
#include <QTemporaryDir>
#include "support/DialogDriver.h"
#include "support/ModuleGUI.h"

class TestModuleGUI : public QObject {
    Q_OBJECT
private slots:
    void messageBoxShowsTitleTextIconAndButtons()
    {
        DialogDriver driver;
        QString title, text;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QList<QMessageBox::StandardButton> buttons;
        driver.next([&](QWidget* w) {
            auto* box = qobject_cast<QMessageBox*>(w);
            title = box->windowTitle();
            text = box->text();
            icon = box->icon();
            for (auto* b : box->buttons())
                buttons << box->standardButton(b);
            DialogDriver::press(w, QMessageBox::No);
        });
        const MsgAnswer answer = MsgBox(QStringLiteral("Save Configuration?"), MsgButtons::YesNoCancel, MsgIcon::Question);
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(answer, MsgAnswer::No);
        QCOMPARE(title, QStringLiteral("QEL Setup"));
        QCOMPARE(text, QStringLiteral("Save Configuration?"));
        QCOMPARE(icon, QMessageBox::Question);
        QCOMPARE(buttons.size(), 3);
        QVERIFY(buttons.contains(QMessageBox::Yes));
        QVERIFY(buttons.contains(QMessageBox::No));
        QVERIFY(buttons.contains(QMessageBox::Cancel));
    }

    void eachAnswerIsReturned_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<int>("answer");
        QTest::newRow("yes") << int(QMessageBox::Yes) << int(MsgAnswer::Yes);
        QTest::newRow("no") << int(QMessageBox::No) << int(MsgAnswer::No);
        QTest::newRow("cancel") << int(QMessageBox::Cancel) << int(MsgAnswer::Cancel);
    }
    void eachAnswerIsReturned()
    {
        QFETCH(int, button);
        QFETCH(int, answer);
        DialogDriver driver;
        driver.next([&](QWidget* w) { DialogDriver::press(w, QMessageBox::StandardButton(button)); });
        QCOMPARE(int(MsgBox(QStringLiteral("?"), MsgButtons::YesNoCancel)), answer);
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
    }

    void exclamationBoxHasOkOnly()
    {
        DialogDriver driver;
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        int count = 0;
        driver.next([&](QWidget* w) {
            auto* box = qobject_cast<QMessageBox*>(w);
            icon = box->icon();
            count = int(box->buttons().size());
            DialogDriver::press(w, QMessageBox::Ok);
        });
        MsgBoxExclamation(QStringLiteral("No Arduinos!"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(icon, QMessageBox::Warning);
        QCOMPARE(count, 1);
    }

    void saveDialogReturnsPathWithDefaultExtension()
    {
        QTemporaryDir dir;
        DialogDriver driver;
        bool native = true;
        QString name;
        driver.next([&](QWidget* w) {
            auto* fd = qobject_cast<QFileDialog*>(w);
            native = !fd->testOption(QFileDialog::DontUseNativeDialog);
            name = fd->objectName();
            DialogDriver::chooseFile(w, dir.filePath(QStringLiteral("Opening")));
        });
        const QString path = ShowSaveDialog(nullptr, QStringLiteral("TheCommonDialog"),
                                            QStringLiteral("Configuration Files (*.qel)|*.qel"), QStringLiteral(".qel"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(!native);
        QCOMPARE(name, QStringLiteral("TheCommonDialog"));
        QCOMPARE(path, QDir::toNativeSeparators(dir.filePath(QStringLiteral("Opening.qel"))));
    }

    void cancelAtFileDialogGivesEmptyText()
    {
        DialogDriver driver;
        driver.next([](QWidget* w) { DialogDriver::cancel(w); });
        QCOMPARE(ShowOpenDialog(nullptr, QStringLiteral("TheCommonDialog"), QStringLiteral("Configuration Files (*.qel)|*.qel"),
                                QStringLiteral(".qel")),
                 QString());
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
    }

    void tickCountAdvancesWhileEventsRun()
    {
        const qint64 start = GetTickCount();
        while (GetTickCount() - start < 50)
            DoEvents();
        QVERIFY(GetTickCount() - start >= 50);
    }
};

QTEST_MAIN(TestModuleGUI)
#include "test_modulegui.moc"
