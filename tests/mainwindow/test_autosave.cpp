// The auto-save that closing the main window always writes, named after today's date.
#include <QtTest>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QTreeWidget>
#include "files/ModuleSaveOpen.h"
#include "mainwindow/FormInitial.h"
#include "model/CArduinoData.h"
#include "model/CExoData.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "rules/ModuleGlobalEvents.h"
#include "support/DialogDriver.h"
#include "support/Platform.h"
#include "support/TestData.h"
#include "mainwindow/MainWindowSession.h"

class TestAutoSave : public QObject {
    Q_OBJECT
private:
    MainWindowSession session;
    std::unique_ptr<FormInitial>& form = session.form;
    QTemporaryDir dir;

private slots:
    void init()
    {
        gDirty = false;
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    }
    void cleanup()
    {
        session.stop();
        QDir(AutoSaveRoot() + QStringLiteral("/AutoSave")).removeRecursively();
    }

    void closingWritesTheAutoSaveUnderTodaysDate()
    {
        session.start();
        gMainConfig.m_strName = QStringLiteral("First close");
        form->close();
        const QString name = ShortDateText().replace(u'/', u' ');
        QVERIFY(!name.contains(u'/'));
        const QString folder = AutoSaveRoot() + QStringLiteral("/AutoSave/");
        QCOMPARE(gConfigFolder, native(folder));
        QCOMPARE(gConfigName, name);
        QCOMPARE(gConfigFilePath, native(folder + name + QStringLiteral(".qel")));
        QCOMPARE(gAutoSaved, true);
        QVERIFY(ReadBytes(folder + name + QStringLiteral(".qel")).contains("\r\nFirst close\r\n"));
        QVERIFY(QFileInfo::exists(folder + name + QStringLiteral("/Scenes.cfg")));
    }

    void aSecondClosingOnOneDayReplacesTheFirst()
    {
        session.start();
        gMainConfig.m_strName = QStringLiteral("First close");
        form->close();
        form.reset();
        session.start();
        gMainConfig.m_strName = QStringLiteral("Second close");
        form->close();
        const QString name = ShortDateText().replace(u'/', u' ');
        const QString folder = AutoSaveRoot() + QStringLiteral("/AutoSave/");
        QCOMPARE(folderFiles(folder), QStringList{name + QStringLiteral(".qel")});
        QVERIFY(ReadBytes(folder + name + QStringLiteral(".qel")).contains("\r\nSecond close\r\n"));
        QVERIFY(ReadBytes(folder + name + QStringLiteral("/Scenes.cfg")).contains("\r\nSecond close\r\n"));
    }

    void aDateWithDotsKeepsThemInTheAutoSaveName()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        session.start();
        form->close();
        QVERIFY2(gConfigName.contains(u'.'), qPrintable(gConfigName));
        QCOMPARE(gConfigName, QLocale().toString(QDate::currentDate(), QLocale::ShortFormat));
        QVERIFY(QFileInfo::exists(AutoSaveRoot() + QStringLiteral("/AutoSave/") + gConfigName + QStringLiteral(".qel")));
    }

    void aDateWithSlashesGetsBlanks()
    {
        session.start();
        form->close();
        QVERIFY(!gConfigName.contains(u'/'));
        QCOMPARE(gConfigName, QLocale().toString(QDate::currentDate(), QLocale::ShortFormat).replace(u'/', u' '));
        QVERIFY(gConfigName.contains(u' '));
    }

    void cancelAtTheClosingQuestionStillAutoSavesAndKeepsTheWindow()
    {
        session.start();
        const QString path = native(dir.filePath(QStringLiteral("Mine.qel")));
        session.saveAs(path);
        gMainConfig.m_strName = QStringLiteral("Unsaved change");
        gDirty = true;
        DialogDriver driver;
        driver.next(answer(QMessageBox::Cancel));
        QVERIFY(!form->close());
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(form->isVisible());
        const QString folder = native(AutoSaveRoot() + QStringLiteral("/AutoSave/"));
        QVERIFY(gConfigFilePath.startsWith(folder));
        QVERIFY(ReadBytes(gConfigFilePath).contains("\r\nUnsaved change\r\n"));
        QVERIFY(!ReadBytes(path).contains("Unsaved change"));
        // A later Save writes into the auto-save folder.
        gMainConfig.m_strName = QStringLiteral("Later");
        session.menu("Save")->trigger();
        QVERIFY(ReadBytes(gConfigFilePath).contains("\r\nLater\r\n"));
    }
};

QTEST_MAIN(TestAutoSave)
#include "test_autosave.moc"
