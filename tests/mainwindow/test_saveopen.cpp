// Saving and opening a whole performance through the File menu, as an operator does them.
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

class TestSaveOpen : public QObject {
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

    void saveAsWritesTheMainFileAndItsFolder()
    {
        session.start();
        const QString path = native(dir.filePath(QStringLiteral("Opening.qel")));
        session.saveAs(path);
        QCOMPARE(gConfigFilePath, path);
        QCOMPARE(gConfigName, QStringLiteral("Opening"));
        QCOMPARE(gConfigFolder, native(dir.path()) + QDir::separator());
        QVERIFY(QFileInfo::exists(path));
        const QString folder = dir.filePath(QStringLiteral("Opening"));
        QCOMPARE(folderFiles(folder),
                 (QStringList{"BotsEvents.cfg", "Events.cfg", "GlobalEvents.cfg", "Scenes.cfg", "Scenes.txt",
                              "Talpor.cfg", "VideoCapture.cfg", "VideoEvents.cfg", "Vilna.cfg"}));
        QCOMPARE(ReadBytes(folder + QStringLiteral("/Events.cfg")), QByteArray(" 1 \r\n 0 \r\n"));
        QCOMPARE(ReadBytes(folder + QStringLiteral("/Scenes.txt")), QByteArray(" 1 \r\n\r\n0 - SCENE 1\r\n\r\n\r\n"));
        QCOMPARE(ReadBytes(folder + QStringLiteral("/Talpor.cfg")), QByteArray(" 0 \r\n\r\n\r\n.\r\n\r\n\r\n"));
        QCOMPARE(ReadBytes(folder + QStringLiteral("/Vilna.cfg")), QByteArray("\r\n"));
        QCOMPARE(ReadBytes(folder + QStringLiteral("/GlobalEvents.cfg")),
                 QByteArray(";-----------------------------------------------------\r\n"
                            "; QEL Global Events Configuration File\r\n"
                            ";-----------------------------------------------------\r\n"
                            "\r\n"));
        QCOMPARE(ReadBytes(folder + QStringLiteral("/VideoEvents.cfg")),
                 QByteArray(";-------------------------------------\r\n"
                            "; QEL Video Events Configuration File.\r\n"
                            ";-------------------------------------\r\n"
                            "\r\n\r\n\r\n.\r\n\r\n\r\n"));
        QCOMPARE(ReadBytes(folder + QStringLiteral("/Scenes.cfg")),
                 QByteArray(";---------------------------------------\r\n"
                            "; QEL Scenes & Parts Configuration File\r\n"
                            ";---------------------------------------\r\n"
                            "\r\n\r\n"
                            "; Title:\r\n"
                            "QEL New\r\n"
                            "\r\n"
                            "; Number of Scenes:\r\n"
                            " 1 \r\n"
                            "\r\n\r\n"
                            "; Scene 0:\r\n"
                            ";-------------------\r\n"
                            "\r\n"
                            "; ID:\r\n"
                            " 0 \r\n"
                            "\r\n"
                            "; Name:\r\n"
                            "SCENE 1\r\n"
                            "\r\n"
                            "; Color:\r\n"
                            " 0 \r\n"
                            "\r\n"
                            "; Remarks:\r\n"
                            "My first and only scene\r\n"
                            "\r\n"
                            "; SWF Path:\r\n"
                            "\r\n"
                            "; Number of Parts:\r\n"
                            " 1 \r\n"
                            "\r\n"
                            ";      Part 0:\r\n"
                            ";      --------\r\n"
                            "\r\n"
                            ";      ID:\r\n"
                            "       0\r\n"
                            "\r\n"
                            ";      Name:\r\n"
                            "       \r\n"
                            "\r\n"
                            ";      Remarks:\r\n"
                            "       \r\n"
                            "\r\n"
                            "\r\n"
                            "\r\n\r\n"));
        const QByteArray main = ReadBytes(path);
        QVERIFY(main.startsWith(";-----------------------------\r\n; QEL Main Configuration File\r\n"));
        QVERIFY(main.contains("\r\n; Title:\r\nQEL New\r\n"));
        QVERIFY(main.contains("\r\n; Control Machine IP Address:\r\n192.168.1.10\r\n"));
        QVERIFY(main.endsWith("; Value Events per Second:\r\n 16 \r\n\r\n\r\n\r\n"));
        QCOMPARE(gDirty, false);
    }

    void openInAFreshStartBringsThePerformanceBack()
    {
        session.start();
        gMainConfig.m_strName = QStringLiteral("Opening Night");
        gMainConfig.m_iNExos = 1;
        gMainConfig.m_iNArduinos = 2;
        gMainConfig.m_iNVideoCaps = 1;
        gArduinoData(1).m_strLabel = QStringLiteral("Left glove");
        gExoData(0).m_iMax(3) = 200;
        auto scene = std::make_shared<CScene>();
        scene->m_strName = QStringLiteral("INTRO");
        scene->m_iColor = 12;
        scene->InitPartList();
        gScenes.Add(scene);
        gScenes.Item(2)->PartList.Item(1)->m_VideoCapture(0)->m_iFPS = 25;
        const QString path = native(dir.filePath(QStringLiteral("Night.qel")));
        session.saveAs(path);
        form.reset();

        session.start();
        QCOMPARE(gScenes.Count(), 1);
        session.open(path);
        QCOMPARE(gConfigFilePath, path);
        QCOMPARE(gMainConfig.m_strName, QStringLiteral("Opening Night"));
        QCOMPARE(form->findChild<QLabel*>(QStringLiteral("TextName"))->text(), QStringLiteral("Opening Night"));
        QCOMPARE(gMainConfig.m_iNExos, qint16(1));
        QCOMPARE(gMainConfig.m_iNArduinos, qint16(2));
        QCOMPARE(form->findChild<QComboBox*>(QStringLiteral("ComboNArduinos"))->currentText(), QStringLiteral("2"));
        QCOMPARE(gArduinoData(1).m_strLabel, QStringLiteral("Left glove"));
        QCOMPARE(gExoData(0).m_iMax(3), qint16(200));
        QCOMPARE(gScenes.Count(), 2);
        QCOMPARE(gScenes.Item(2)->m_strName, QStringLiteral("INTRO"));
        QCOMPARE(gScenes.Item(2)->m_iColor, qint16(12));
        QCOMPARE(gScenes.Item(2)->PartList.Item(1)->m_VideoCapture(0)->m_iFPS, qint16(25));
        auto* scenes = form->findChild<QTreeWidget*>(QStringLiteral("ListMain2"));
        QVERIFY(scenes->isVisible());   // Open ends on the rule view
        QCOMPARE(scenes->topLevelItemCount(), 3);
        QCOMPARE(scenes->topLevelItem(1)->text(0), QStringLiteral("001  INTRO"));
        QVERIFY(scenes->topLevelItem(0)->isSelected());
        QCOMPARE(gDirty, false);
    }

    void cancelAtTheOpenDialogLeavesThePerformance()
    {
        session.start();
        gMainConfig.m_strName = QStringLiteral("Unsaved");
        DialogDriver driver;
        driver.next([](QWidget* w) { DialogDriver::cancel(w); });
        session.menu("Open")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(gMainConfig.m_strName, QStringLiteral("Unsaved"));
        QCOMPARE(gConfigFilePath, QString());
    }

    void yesToSaveThenCancelAtTheOpenDialogLeavesThePerformance()
    {
        session.start();
        const QString path = native(dir.filePath(QStringLiteral("Kept.qel")));
        session.saveAs(path);
        gMainConfig.m_strName = QStringLiteral("Changed");
        gDirty = true;
        DialogDriver driver;
        driver.next(answer(QMessageBox::Yes));
        driver.next([](QWidget* w) { DialogDriver::cancel(w); });
        session.menu("Open")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(gMainConfig.m_strName, QStringLiteral("Changed"));
        QCOMPARE(gConfigFilePath, path);
        // Yes saved to the performance's own file first.
        QVERIFY(ReadBytes(path).contains("\r\nChanged\r\n"));
    }

    void yesAtNewOnANeverSavedPerformanceRunsSaveAsAndCancelGoesOn()
    {
        session.start();
        gMainConfig.m_strName = QStringLiteral("Lost");
        gDirty = true;
        DialogDriver driver;
        QString dialogName;
        driver.next(answer(QMessageBox::Yes));
        driver.next([&](QWidget* w) {
            dialogName = w->objectName();
            DialogDriver::cancel(w);
        });
        session.menu("New")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(dialogName, QStringLiteral("TheCommonDialog"));
        QCOMPARE(gMainConfig.m_strName, QStringLiteral("QEL New"));
        QCOMPARE(gConfigFilePath, QString());
        QCOMPARE(gDirty, false);
    }

    void savingTwiceOverwritesAndLeavesFilesOfRemovedDevices()
    {
        session.start();
        gMainConfig.m_iNExos = 2;
        const QString path = native(dir.filePath(QStringLiteral("Twice.qel")));
        session.saveAs(path);
        const QString folder = dir.filePath(QStringLiteral("Twice"));
        QVERIFY(QFileInfo::exists(folder + QStringLiteral("/Exo2.cfg")));
        gMainConfig.m_iNExos = 1;
        gMainConfig.m_strName = QStringLiteral("Second");
        session.menu("Save")->trigger();
        QVERIFY(ReadBytes(path).contains("\r\nSecond\r\n"));
        QVERIFY(ReadBytes(folder + QStringLiteral("/Scenes.cfg")).contains("\r\nSecond\r\n"));
        QVERIFY(QFileInfo::exists(folder + QStringLiteral("/Exo1.cfg")));
        QVERIFY(QFileInfo::exists(folder + QStringLiteral("/Exo2.cfg")));
    }

    void noExoskeletonsAndNoArduinosGiveNoSuchFiles()
    {
        session.start();
        const QString path = native(dir.filePath(QStringLiteral("Bare.qel")));
        session.saveAs(path);
        const QStringList files = folderFiles(dir.filePath(QStringLiteral("Bare")));
        for (const QString& f : files)
            QVERIFY2(!f.startsWith(QStringLiteral("Exo")) && !f.startsWith(QStringLiteral("Arduino")), qPrintable(f));
        gExoData(0).m_iMax(0) = 7;
        session.open(path);
        QCOMPARE(gExoData(0).m_iMax(0), qint16(7));   // nothing read for a suit that is not there
    }

    void missingGlobalRulesStopOpenAfterTheRules()
    {
        session.start();
        gMainConfig.m_iNExos = 1;
        gMainConfig.m_iNVideoCaps = 1;
        gExoData(0).m_iMax(0) = 100;
        gScenes.Item(1)->PartList.Item(1)->m_VideoCapture(0)->m_iFPS = 12;
        const QString path = native(dir.filePath(QStringLiteral("NoGlobal.qel")));
        session.saveAs(path);
        QFile::remove(dir.filePath(QStringLiteral("NoGlobal/GlobalEvents.cfg")));
        gExoData(0).m_iMax(0) = 1;
        QStringList messages;
        session.open(path, &messages, 2);
        QCOMPARE(messages, (QStringList{"Error opening global events configuration file!",
                                        "Error opening global events configuration!"}));
        QCOMPARE(gExoData(0).m_iMax(0), qint16(1));   // not read
        QCOMPARE(gScenes.Item(1)->PartList.Item(1)->m_VideoCapture(0)->m_iFPS, qint16(5));   // defaults
    }

    void olderPerformanceWithoutCaptureFileOpensWithItsMessage()
    {
        session.start();
        gMainConfig.m_iNExos = 1;
        gMainConfig.m_iNVideoCaps = 1;
        gExoData(0).m_iMax(0) = 100;
        gScenes.Item(1)->PartList.Item(1)->m_VideoCapture(0)->m_iFPS = 12;
        const QString path = native(dir.filePath(QStringLiteral("Older.qel")));
        session.saveAs(path);
        QFile::remove(dir.filePath(QStringLiteral("Older/VideoCapture.cfg")));
        gExoData(0).m_iMax(0) = 1;
        QStringList messages;
        session.open(path, &messages, 1);
        QCOMPARE(messages, QStringList{QStringLiteral("Error opening video capture configuration!")});
        QCOMPARE(gExoData(0).m_iMax(0), qint16(100));
        QCOMPARE(gScenes.Item(1)->PartList.Item(1)->m_VideoCapture(0)->m_iFPS, qint16(5));
    }

    void eachOpenFailureShowsItsMessage_data()
    {
        QTest::addColumn<QString>("removed");
        QTest::addColumn<QString>("message");
        QTest::newRow("arduino") << "Arduino2.cfg" << "Error opening Arduino data configuration!";
        QTest::newRow("scenes") << "Scenes.cfg" << "Error opening scenes configuration!";
        QTest::newRow("exoskeleton") << "Exo1.cfg" << "Error opening exoskeleton data configuration!";
    }
    void eachOpenFailureShowsItsMessage()
    {
        QFETCH(QString, removed);
        QFETCH(QString, message);
        session.start();
        gMainConfig.m_iNExos = 1;
        gMainConfig.m_iNArduinos = 2;
        const QString path = native(dir.filePath(QStringLiteral("Fail_") + QTest::currentDataTag() + QStringLiteral(".qel")));
        session.saveAs(path);
        QFile::remove(dir.filePath(QStringLiteral("Fail_") + QTest::currentDataTag() + QStringLiteral("/") + removed));
        QStringList messages;
        session.open(path, &messages, 1);
        QCOMPARE(messages, QStringList{message});
        QCOMPARE(gConfigFilePath, path);
        QCOMPARE(gDirty, false);
    }

    void missingMainFileShowsItsMessage()
    {
        session.start();
        QStringList messages;
        QTemporaryDir other;
        const QString path = native(other.filePath(QStringLiteral("Gone.qel")));
        WriteBytes(path, "");
        session.open(path, &messages, 1);
        QCOMPARE(messages, QStringList{QStringLiteral("Error opening main configuration!")});
    }

    void missingRulesFileShowsOnlyTheRulesReadersMessage()
    {
        session.start();
        const QString path = native(dir.filePath(QStringLiteral("NoRules.qel")));
        session.saveAs(path);
        QFile::remove(dir.filePath(QStringLiteral("NoRules/Events.cfg")));
        QStringList messages;
        session.open(path, &messages, 1);
        QCOMPARE(messages.size(), 1);
        QVERIFY2(messages[0].startsWith(QStringLiteral("Error opening events configuration file!")), qPrintable(messages[0]));
    }

    void aFailedSaveStepShowsItsMessageAndTheSaveGoesOn()
    {
        session.start();
        gMainConfig.m_iNExos = 1;
        gMainConfig.m_iNArduinos = 1;
        // A file where the performance's folder should be: every data file fails.
        const QString path = native(dir.filePath(QStringLiteral("Blocked.qel")));
        WriteBytes(dir.filePath(QStringLiteral("Blocked")), "not a folder");
        gDirty = true;
        DialogDriver driver;
        QStringList messages;
        driver.next([path](QWidget* w) { DialogDriver::chooseFile(w, path); });
        for (int i = 0; i < 8; ++i)
            driver.next([&messages](QWidget* w) {
                messages << DialogDriver::text(w);
                DialogDriver::press(w, QMessageBox::Ok);
            });
        session.menu("SaveAs")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(messages, (QStringList{"Error saving scenes configuration!", "Error saving movies filenames!",
                                        "Error saving events configuration!",
                                        "Error saving rukaBots events configuration!",
                                        "Error saving exoskeleton data configuration!",
                                        "Error saving Arduino data configuration!",
                                        "Error saving video capture configuration!",
                                        "Error saving global events configuration!"}));
        QVERIFY(QFileInfo::exists(path));   // the main file was written all the same
        QCOMPARE(gDirty, false);             // a failed save counts as saved
    }

    void aCountBeyondItsTableFailsThoseStepsAndTheSaveGoesOn()
    {
        session.start();
        gMainConfig.m_iNExos = 3;   // only two suits have records
        QTemporaryDir other;
        DeriveConfigPaths(native(other.filePath(QStringLiteral("Three.qel"))));
        DialogDriver driver;
        QStringList messages;
        for (int i = 0; i < 2; ++i)
            driver.next([&messages](QWidget* w) {
                messages << DialogDriver::text(w);
                DialogDriver::press(w, QMessageBox::Ok);
            });
        SaveConfiguration(gConfigFilePath);
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(messages, (QStringList{"Error saving main configuration!",
                                        "Error saving exoskeleton data configuration!"}));
        const QString folder = other.filePath(QStringLiteral("Three"));
        QVERIFY(QFileInfo::exists(folder + QStringLiteral("/Exo2.cfg")));
        QVERIFY(QFileInfo::exists(folder + QStringLiteral("/GlobalEvents.cfg")));
    }
};

QTEST_MAIN(TestSaveOpen)
#include "test_saveopen.moc"
