// The Flash players dialog as an operator uses it from the device panel.
#include "DeviceDialogSession.h"
#include "devices/FormFlashConfig.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"

class TestFlashConfig : public QObject {
    Q_OBJECT
private:
    DeviceDialogSession s;

    // Opens the dialog over `count` players and runs `act` on it.
    void openWith(int count, const std::function<void(QWidget*)>& act)
    {
        s.pickCount("ComboNFlash", count);
        gDirty = false;   // the count's own change is not under test
        QString error;
        QVERIFY2(s.click("CommandFlash", {[&](QWidget* d) { act(d); }}, &error), qPrintable(error));
    }
    // Accepts one path typed into the first player's box; the stored path.
    QString storedPath(const QString& typed)
    {
        openWith(1, [&](QWidget* d) {
            typeIn(d, row("TextFlashPlayer", 0), typed);
            clickOn(d, QStringLiteral("CommandOK"));
        });
        return gMainConfig.m_strFlashFolderPath(0);
    }
    int okTopWith(int count)
    {
        int top = -1;
        openWith(count, [&](QWidget* d) {
            top = control<QPushButton>(d, QStringLiteral("CommandOK"))->y();
            clickOn(d, QStringLiteral("CommandCancel"));
        });
        return top;
    }

private slots:
    void initTestCase() { s.start(); }
    void init()
    {
        s.fresh();
        // New leaves the dialog's own fields as they were: each test starts them afresh.
        gMainConfig.m_iFlashUDPPort = 0;
        gMainConfig.m_bFlashUDPEnabled = false;
        gMainConfig.m_strFlashBroadcastIP.clear();
        gMainConfig.m_strFlashPerformanceInfo.clear();
        gMainConfig.m_bFlashCopyCfg.Fill(false);
    }
    void cleanupTestCase() { s.stop(); }

    void withNoPlayersTheButtonOnlySaysSo()
    {
        SeenBox box;
        QString error;
        QVERIFY2(s.click("CommandFlash", {noteBox(&box)}, &error), qPrintable(error));
        QCOMPARE(box.text, QStringLiteral("No Flash players!"));
        QCOMPARE(box.title, QStringLiteral("QEL Setup"));
        QCOMPARE(box.icon, QMessageBox::Warning);
    }

    void theDialogCarriesItsCaptionsAndControls()
    {
        QString caption;
        QStringList labels, copies;
        bool classes = false;
        openWith(2, [&](QWidget* d) {
            caption = d->windowTitle();
            for (QLabel* label : d->findChildren<QLabel*>())
                labels << label->text();
            for (int i = 0; i < 16; ++i)
                copies << control<QCheckBox>(d, row("CheckCopyCfg", i))->text();
            classes = d->findChild<QLineEdit*>(QStringLiteral("TextFlashPort")) && d->findChild<QLineEdit*>(QStringLiteral("TextUDPPort"))
                      && d->findChild<QCheckBox*>(QStringLiteral("CheckUDPEnabled"))
                      && d->findChild<QLineEdit*>(QStringLiteral("TextBroadcastIP"))
                      && d->findChild<QLineEdit*>(QStringLiteral("TextPerformanceInfo"))
                      && d->findChild<QLabel*>(row("LabelN", 15)) && d->findChild<QLineEdit*>(row("TextFlashPlayer", 15));
            clickOn(d, QStringLiteral("CommandCancel"));
        });
        QCOMPARE(caption, QStringLiteral("Flash Configuration"));
        for (const char* text : {"Flash port", "UDP broadcast enabled", "UDP port", "Broadcast IP", "Performance info",
                                 "Path for Flash Players"})
            QVERIFY2(labels.contains(QString::fromLatin1(text)), text);
        QCOMPARE(copies, QStringList(16, QStringLiteral("Copy movieplayer.cfg")));
        QVERIFY(classes);
    }

    void theDialogShowsTheRecordForThePlayersInUse()
    {
        gMainConfig.m_iFlashUDPPort = 9991;
        gMainConfig.m_bFlashUDPEnabled = true;
        gMainConfig.m_strFlashBroadcastIP = QStringLiteral("192.168.1.255");
        gMainConfig.m_bFlashCopyCfg(1) = true;
        QStringList texts;
        QList<bool> visible;
        bool udp = false, copy0 = true, copy1 = false;
        openWith(2, [&](QWidget* d) {
            texts << textOf(d, QStringLiteral("TextFlashPort")) << textOf(d, QStringLiteral("TextUDPPort"))
                  << textOf(d, QStringLiteral("TextBroadcastIP")) << textOf(d, row("TextFlashPlayer", 1));
            udp = control<QCheckBox>(d, QStringLiteral("CheckUDPEnabled"))->isChecked();
            copy0 = control<QCheckBox>(d, row("CheckCopyCfg", 0))->isChecked();
            copy1 = control<QCheckBox>(d, row("CheckCopyCfg", 1))->isChecked();
            for (int i = 0; i < 4; ++i)
                visible << shown(d, row("LabelN", i)) << shown(d, row("TextFlashPlayer", i)) << shown(d, row("CheckCopyCfg", i));
            clickOn(d, QStringLiteral("CommandCancel"));
        });
        QCOMPARE(texts, (QStringList{"1122", "9991", "192.168.1.255", "\\\\flashmachine2\\flashfolder\\"}));
        QVERIFY(udp);
        QVERIFY(!copy0);
        QVERIFY(copy1);
        QCOMPARE(visible, (QList<bool>{true, true, true, true, true, true, false, false, false, false, false, false}));
    }

    void anEmptyPathStaysEmpty() { QCOMPARE(storedPath(QString()), QString()); }

    void aPathEndingInABackslashGetsNoSecondOne()
    {
        QCOMPARE(storedPath(QStringLiteral("\\\\srv\\movies\\")), QStringLiteral("\\\\srv\\movies\\"));
    }

    void aPathWithoutABackslashGetsOne()
    {
        QCOMPARE(storedPath(QStringLiteral("d:\\x")), QStringLiteral("d:\\x\\"));
        // A slash is no backslash.
        QCOMPARE(storedPath(QStringLiteral("d:/x/")), QStringLiteral("d:/x/\\"));
    }

    void withOnePlayerTheButtonsStandWhereThreePlayersWouldPutThem()
    {
        const int three = okTopWith(3);
        QCOMPARE(three, (3 * 480 + 3240) / 15);
        QCOMPARE(okTopWith(1), three);
        QCOMPARE(okTopWith(2), three);
        QCOMPARE(okTopWith(5), (5 * 480 + 3240) / 15);
    }

    void theUDPCheckBoxEnablesItsBoxesAndADisabledBoxIsStoredAllTheSame()
    {
        QList<bool> enabled;
        openWith(1, [&](QWidget* d) {
            clickOn(d, QStringLiteral("CheckUDPEnabled"));   // on
            typeIn(d, QStringLiteral("TextUDPPort"), QStringLiteral("7777"));
            typeIn(d, QStringLiteral("TextBroadcastIP"), QStringLiteral("10.0.0.255"));
            typeIn(d, QStringLiteral("TextPerformanceInfo"), QStringLiteral("Premiere"));
            clickOn(d, QStringLiteral("CheckUDPEnabled"));   // off
            for (const char* name : {"TextUDPPort", "TextBroadcastIP", "TextPerformanceInfo"})
                enabled << control<QLineEdit>(d, QString::fromLatin1(name))->isEnabled();
            clickOn(d, QStringLiteral("CheckUDPEnabled"));   // on
            for (const char* name : {"TextUDPPort", "TextBroadcastIP", "TextPerformanceInfo"})
                enabled << control<QLineEdit>(d, QString::fromLatin1(name))->isEnabled();
            clickOn(d, QStringLiteral("CheckUDPEnabled"));   // off again, and OK
            clickOn(d, QStringLiteral("CommandOK"));
        });
        QCOMPARE(enabled, (QList<bool>{false, false, false, true, true, true}));
        QCOMPARE(gMainConfig.m_iFlashUDPPort, qint16(7777));
        QCOMPARE(gMainConfig.m_strFlashBroadcastIP, QStringLiteral("10.0.0.255"));
        QCOMPARE(gMainConfig.m_strFlashPerformanceInfo, QStringLiteral("Premiere"));
        QVERIFY(!gMainConfig.m_bFlashUDPEnabled);
    }

    void aPortThatIsNoNumberLeavesItsFieldAsItWas()
    {
        openWith(1, [&](QWidget* d) {
            typeIn(d, QStringLiteral("TextFlashPort"), QStringLiteral("port"));
            typeIn(d, QStringLiteral("TextUDPPort"), QStringLiteral("4444"));
            clickOn(d, QStringLiteral("CommandOK"));
        });
        QCOMPARE(gMainConfig.m_iFlashPort, qint16(1122));
        QCOMPARE(gMainConfig.m_iFlashUDPPort, qint16(4444));
        QVERIFY(gDirty);
    }

    void okStoresThePlayersAndSaveAsWritesThem()
    {
        openWith(2, [&](QWidget* d) {
            typeIn(d, QStringLiteral("TextFlashPort"), QStringLiteral("2000"));
            typeIn(d, row("TextFlashPlayer", 0), QStringLiteral("\\\\stage\\flash"));
            typeIn(d, row("TextFlashPlayer", 1), QStringLiteral("e:\\show\\"));
            clickOn(d, row("CheckCopyCfg", 1));
            clickOn(d, QStringLiteral("CommandOK"));
        });
        QVERIFY(gDirty);
        QVERIFY(gMainConfig.m_bFlashCopyCfg(1));
        QVERIFY(!gMainConfig.m_bFlashCopyCfg(0));
        const QByteArray file = s.saveAsAndRead(QStringLiteral("flash.qel"));
        QVERIFY2(file.contains(fileLines({"; Number of Flash apps:", " 2 ", "", "; Number of video capture devices:"})), file.constData());
        QVERIFY2(file.contains(fileLines({"; Flash Port:", " 2000 ", "", "; QEL Display Manager Port:"})), file.constData());
        QVERIFY2(file.contains(fileLines({"; Flash Player Folder:", "\\\\stage\\flash\\", "e:\\show\\", "", "; QDM Remote Paths:"})),
                 file.constData());

        s.reopen(QStringLiteral("flash.qel"));
        QCOMPARE(gMainConfig.m_iNFlash, qint16(2));
        QCOMPARE(gMainConfig.m_iFlashPort, qint16(2000));
        QCOMPARE(gMainConfig.m_strFlashFolderPath(0), QStringLiteral("\\\\stage\\flash\\"));
        QCOMPARE(gMainConfig.m_strFlashFolderPath(1), QStringLiteral("e:\\show\\"));
    }

    void loadClearsTheUpdateFlagAndOkSetsIt()
    {
        {
            FormFlashConfig dialog(s.form.get());
            dialog.iNumFlash = 1;
            const UpdateFlag ok = updateFlagAround(dialog, [](QWidget* d) { clickOn(d, QStringLiteral("CommandOK")); });
            QVERIFY2(ok.error.isEmpty(), qPrintable(ok.error));
            QVERIFY(!ok.atLoad);
            QVERIFY(ok.atClose);
        }
        FormFlashConfig dialog(s.form.get());
        dialog.iNumFlash = 1;
        const UpdateFlag cancel = updateFlagAround(dialog, [](QWidget* d) { clickOn(d, QStringLiteral("CommandCancel")); });
        QVERIFY2(cancel.error.isEmpty(), qPrintable(cancel.error));
        QVERIFY(!cancel.atLoad);
        QVERIFY(!cancel.atClose);
    }

    void cancelChangesNothing()
    {
        openWith(2, [&](QWidget* d) {
            typeIn(d, QStringLiteral("TextFlashPort"), QStringLiteral("3000"));
            typeIn(d, row("TextFlashPlayer", 0), QStringLiteral("x"));
            clickOn(d, row("CheckCopyCfg", 0));
            clickOn(d, QStringLiteral("CommandCancel"));
        });
        QCOMPARE(gMainConfig.m_iFlashPort, qint16(1122));
        QCOMPARE(gMainConfig.m_strFlashFolderPath(0), QStringLiteral("\\\\flashmachine1\\flashfolder\\"));
        QVERIFY(!gMainConfig.m_bFlashCopyCfg(0));
        QVERIFY(!gDirty);
    }
};

QTEST_MAIN(TestFlashConfig)
#include "test_flash.moc"
