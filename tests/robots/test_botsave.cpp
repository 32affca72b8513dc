// Saving from the robot forms, and the robot rules on their way to the files:
// a pasted rule is written where its robot's rules go, and an opened
// performance brings no robot rules back.
#include <QtTest>
#include <QDir>
#include <QTemporaryDir>
#include "files/ModuleSaveOpen.h"
#include "mainwindow/FormInitial.h"
#include "model/CMainConfig.h"
#include "robots/BotFormsSession.h"

namespace {

const QString kRule = QStringLiteral(";-----------------------------------------------------");

// The rows of the three files written by hand: the index header and the end.
QByteArray IndexFile(const QStringList& sceneBlocks)
{
    QStringList lines = {kRule, "; QEL RukaBot Events Configuration File", kRule, "", "", ""};
    lines << sceneBlocks;
    lines << QStringList{"", ".", "", ""};
    return Lines1252(lines);
}

} // namespace

class TestBotSave : public QObject {
    Q_OBJECT
private:
    BotFormsSession session;
    QTemporaryDir dir;

    QString scratch(const QString& name)
    {
        const QString path = dir.filePath(name);
        QDir().mkpath(path);
        return QDir::toNativeSeparators(path);
    }

    // Opens the form named `form` (FormBots, FormBotsInteraction or
    // FormAddEditBotInter) from CommandBots and chooses its Save; `more` acts
    // on what the Save brings up.
    void saveFrom(const QString& form, const QList<DialogDriver::Action>& more)
    {
        DialogDriver driver;
        if (form == QStringLiteral("FormBots")) {
            session.clickEndRow();
            driver.next([](QWidget* w) {
                choose(w, QStringLiteral("Save"));
                DialogDriver::click(w, QStringLiteral("CommandClose"));
            });
        } else {
            session.clickSceneRow(0);
            if (form == QStringLiteral("FormBotsInteraction")) {
                driver.next([](QWidget* w) {
                    choose(w, QStringLiteral("Save"));
                    DialogDriver::click(w, QStringLiteral("CommandClose"));
                });
            } else {
                driver.next([](QWidget* w) {
                    DialogDriver::click(w, QStringLiteral("CommandAdd"));
                    DialogDriver::click(w, QStringLiteral("CommandClose"));
                });
                driver.next([](QWidget* w) {
                    choose(w, QStringLiteral("Save"));
                    DialogDriver::click(w, QStringLiteral("CommandCancel"));
                });
            }
        }
        for (const auto& action : more)
            driver.next(action);
        session.clickBots(driver);
    }

private slots:
    void initTestCase() { QVERIFY(dir.isValid()); }
    void init()
    {
        gDirty = false;
        session.startOnRuleView();
    }
    void cleanup()
    {
        gClipboard.Clear();
        session.stop();
        QDir(AutoSaveRoot() + QStringLiteral("/AutoSave")).removeRecursively();
    }

    void aFirstSaveDerivesNoNameAndNoFolder_data()
    {
        QTest::addColumn<QString>("form");
        QTest::newRow("scene list") << QStringLiteral("FormBots");
        QTest::newRow("rule lists") << QStringLiteral("FormBotsInteraction");
        QTest::newRow("rule dialog") << QStringLiteral("FormAddEditBotInter");
    }
    void aFirstSaveDerivesNoNameAndNoFolder()
    {
        // After New the name and the folder are empty, which would put the data
        // files at the root of the drive; here the folder is a scratch folder and
        // the name stays empty.
        QFETCH(QString, form);
        const QString dataFolder = scratch(form + QStringLiteral("-data")) + QDir::separator();
        const QString chosen = scratch(form + QStringLiteral("-chosen")) + QDir::separator() + QStringLiteral("Show.qel");
        QCOMPARE(gConfigFilePath, QString());
        QCOMPARE(gConfigName, QString());
        gConfigFolder = dataFolder;
        gDirty = true;
        QString dialogName;
        saveFrom(form, {[&](QWidget* w) {
                     dialogName = w->objectName();
                     DialogDriver::chooseFile(w, chosen);
                 }});
        QCOMPARE(dialogName, QStringLiteral("TheCommonDialog"));
        QCOMPARE(gConfigFilePath, chosen);
        QCOMPARE(gConfigName, QString());
        QCOMPARE(gConfigFolder, dataFolder);
        QVERIFY(!gDirty);
        QVERIFY(QFileInfo::exists(chosen));
        QCOMPARE(QDir(QFileInfo(chosen).path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList{QStringLiteral("Show.qel")});
        QCOMPARE(folderFiles(dataFolder),
                 (QStringList{"BotsEvents.cfg", "Events.cfg", "GlobalEvents.cfg", "Scenes.cfg", "Scenes.txt",
                              "Talpor.cfg", "VideoCapture.cfg", "VideoEvents.cfg", "Vilna.cfg"}));
    }

    void aSaveWithAKnownMainFileAsksNothing_data() { aFirstSaveDerivesNoNameAndNoFolder_data(); }
    void aSaveWithAKnownMainFileAsksNothing()
    {
        QFETCH(QString, form);
        const QString path = scratch(form + QStringLiteral("-known")) + QDir::separator() + QStringLiteral("Known.qel");
        session.saveAs(path);
        const QString folder = QFileInfo(path).path() + QStringLiteral("/Known");
        QVERIFY(QFile::remove(path));
        QVERIFY(QFile::remove(folder + QStringLiteral("/BotsEvents.cfg")));
        gDirty = true;
        saveFrom(form, {});
        QVERIFY(QFileInfo::exists(path));
        QVERIFY(QFileInfo::exists(folder + QStringLiteral("/BotsEvents.cfg")));
        QCOMPARE(gConfigName, QStringLiteral("Known"));
        QVERIFY(!gDirty);
    }

    void cancelAtTheSaveDialogWritesNothing()
    {
        const QString folder = scratch(QStringLiteral("cancelled")) + QDir::separator();
        gConfigFolder = folder;
        gDirty = true;
        saveFrom(QStringLiteral("FormBotsInteraction"), {[](QWidget* w) { DialogDriver::cancel(w); }});
        QCOMPARE(gConfigFilePath, QString());
        QVERIFY(gDirty);
        QCOMPARE(folderFiles(folder), QStringList());
    }

    void aPastedRuleIsSavedIntoTheFilesOfItsRobot()
    {
        // One rule for an ordinary robot (the index alone), one for Vilna (the
        // index and Vilna.cfg), one for Talpor (Talpor.cfg alone), copied one by
        // one from the first scene and pasted into the second.
        AddTestScene(QStringLiteral("SCENE 2"), 1);
        session.refillScenes();
        PartAt(1, 1).AddBotEvent(Bot(1, QStringLiteral("arm")), 1);
        PartAt(1, 1).AddBotEvent(Bot(3, QStringLiteral("vilna")), 2);
        PartAt(1, 1).AddBotEvent(Bot(5, QStringLiteral("talpor")), 3);
        session.clickEndRow();
        QStringList pastedRows, pastedRemarks;
        DialogDriver driver;
        driver.next([](QWidget* w) {
            for (int k = 0; k < 3; ++k) {
                clickRow(w, QStringLiteral("ListBots"), 0);
                clickRow(w, QStringLiteral("ListBots"), 1);
            }
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        for (int k = 0; k < 3; ++k) {
            driver.next([k](QWidget* w) {
                clickRow(w, QStringLiteral("ListBotsInteraction"), k);
                choose(w, QStringLiteral("Copy"));
                DialogDriver::click(w, QStringLiteral("CommandClose"));
            });
            driver.next([&, k](QWidget* w) {
                clickRow(w, QStringLiteral("ListBotsInteraction"), k);
                choose(w, QStringLiteral("Paste"));
                pastedRows = rowsOf(w, QStringLiteral("ListBotsInteraction"));
                pastedRemarks = rowsOf(w, QStringLiteral("ListRemarks"));
                DialogDriver::click(w, QStringLiteral("CommandClose"));
            });
        }
        session.clickBots(driver);
        QCOMPARE(pastedRows, (QStringList{" 0, 1, 0,", " 1, 1, 0,", " 2, 1, 0,", ""}));
        QCOMPARE(pastedRemarks, (QStringList{"arm", "vilna", "talpor", ""}));

        const QString path = scratch(QStringLiteral("pasted")) + QDir::separator() + QStringLiteral("Pasted.qel");
        session.saveAs(path);
        const QString folder = QFileInfo(path).path() + QStringLiteral("/Pasted/");
        const QStringList scene0 = {"; Scene 0 - SCENE 1.", kRule, "", "",
                                    "; Scene 0 - Part 0. ", "", " 0, 0, 0,,arm", " 1, 0, 0,,vilna", "",
                                    "", "", ""};
        const QStringList scene1 = {"; Scene 1 - SCENE 2.", kRule, "", "",
                                    "; Scene 1 - Part 0. ", "", " 0, 1, 0,,arm", " 1, 1, 0,,vilna", "",
                                    "", "", ""};
        QString diff = DescribeByteDifference(ReadBytes(folder + QStringLiteral("BotsEvents.cfg")),
                                              IndexFile(scene0 + scene1));
        QVERIFY2(diff.isEmpty(), qPrintable(diff));
        diff = DescribeByteDifference(ReadBytes(folder + QStringLiteral("Talpor.cfg")),
                                      Lines1252({" 0 ", "", "0,0", "1,0", "", ".", "", ""}));
        QVERIFY2(diff.isEmpty(), qPrintable(diff));
        diff = DescribeByteDifference(ReadBytes(folder + QStringLiteral("Vilna.cfg")),
                                      Lines1252({"0,0", "1,0", ""}));
        QVERIFY2(diff.isEmpty(), qPrintable(diff));
    }

    void afterOpenTheListsAreEmptyForEverySubscene()
    {
        gScenes.Clear();
        AddTestScene(QStringLiteral("INTRO"), 2);
        AddTestScene(QStringLiteral("DANCE"), 1);
        PartAt(1, 1).AddBotEvent(Bot(1, QStringLiteral("a")), 1);
        PartAt(1, 2).AddBotEvent(Bot(3, QStringLiteral("b")), 1);
        PartAt(2, 1).AddBotEvent(Bot(5, QStringLiteral("c")), 1);
        session.refillScenes();
        const QString path = scratch(QStringLiteral("reopened")) + QDir::separator() + QStringLiteral("Again.qel");
        session.saveAs(path);
        QVERIFY(ReadBytes(QFileInfo(path).path() + QStringLiteral("/Again/Vilna.cfg")) != QByteArray("\r\n"));
        session.open(path);
        QCOMPARE(gScenes.Count(), 2);
        QCOMPARE(gScenes.Item(1)->PartList.Count(), 2);
        for (int s = 1; s <= gScenes.Count(); ++s)
            for (int p = 1; p <= gScenes.Item(s)->PartList.Count(); ++p)
                QCOMPARE(PartAt(s, p).BotEvents.Count(), 0);

        // Subscenes (0, 0) and (1, 0) from their scene rows, (0, 1) from the
        // second row of the scene list.
        QList<QStringList> lists;
        auto look = [&](QWidget* w) {
            lists << rowsOf(w, QStringLiteral("ListBotsInteraction")) << rowsOf(w, QStringLiteral("ListRemarks"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        };
        for (int row : {0, 1}) {
            session.clickSceneRow(row);
            DialogDriver driver;
            driver.next(look);
            session.clickBots(driver);
        }
        session.clickEndRow();
        DialogDriver driver;
        driver.next([](QWidget* w) {
            clickRow(w, QStringLiteral("ListBots"), 1);
            choose(w, QStringLiteral("Save"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        driver.next(look);
        session.clickBots(driver);
        QCOMPARE(lists.size(), 6);
        for (const QStringList& rows : lists)
            QCOMPARE(rows, QStringList{QString()});
        QCOMPARE(gCurrentScene, qint16(0));
        QCOMPARE(gCurrentPart, qint16(1));

        // The save from the scene list writes the robot files without rows.
        const QString folder = QFileInfo(path).path() + QStringLiteral("/Again/");
        QCOMPARE(ReadBytes(folder + QStringLiteral("Vilna.cfg")), QByteArray("\r\n"));
        QCOMPARE(ReadBytes(folder + QStringLiteral("Talpor.cfg")), Lines1252({" 0 ", "", "", ".", "", ""}));
        const QStringList intro = {"; Scene 0 - INTRO.", kRule, "", "",
                                   "; Scene 0 - Part 0. ", "", "",
                                   "; Scene 0 - Part 1. ", "", "", "", "", ""};
        const QStringList dance = {"; Scene 1 - DANCE.", kRule, "", "",
                                   "; Scene 1 - Part 0. ", "", "", "", "", ""};
        const QString diff = DescribeByteDifference(ReadBytes(folder + QStringLiteral("BotsEvents.cfg")),
                                                    IndexFile(intro + dance));
        QVERIFY2(diff.isEmpty(), qPrintable(diff));
    }
};

QTEST_MAIN(TestBotSave)
#include "test_botsave.moc"
