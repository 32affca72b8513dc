// The digital IO cards dialog, offered from the Setup menu of the main window.
#include <QMenu>
#include "DeviceDialogSession.h"
#include "devices/FormDigitalIOSetup.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"

class TestDigitalIOSetup : public QObject {
    Q_OBJECT
private:
    DeviceDialogSession s;

    // Opens the dialog from its menu entry and runs `act` on it.
    void openWith(const std::function<void(QWidget*)>& act)
    {
        DialogDriver driver;
        driver.next([&](QWidget* d) { act(d); });
        s.menu("DigitalIO")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
    }
    // Whether each card's row is on show: its three boxes and four labels all
    // shown, or all hidden. A row half on show is listed twice, so that it
    // matches no expected list.
    static QList<bool> rowsShown(QWidget* d)
    {
        QList<bool> visible;
        for (int i = 0; i < 4; ++i) {
            int on = 0;
            for (const char* name : {"TextID", "TextNIn", "TextNOut", "LabelCard", "LabelID", "LabelNIn", "LabelNOut"})
                on += shown(d, row(name, i)) ? 1 : 0;
            visible << (on == 7);
            if (on != 0 && on != 7)
                visible << false;
        }
        return visible;
    }

private slots:
    void initTestCase() { s.start(); }
    void init() { s.fresh(); }
    void cleanupTestCase() { s.stop(); }

    void theSetupMenuOffersTheDialog()
    {
        QAction* entry = s.menu("DigitalIO");
        QVERIFY(entry);
        QVERIFY(entry->text().contains(QStringLiteral("Digital IO")));
        QVERIFY(entry->isEnabled());
        QVERIFY(s.form->Setup->actions().contains(entry));
        QString caption, label;
        QStringList entries, captions, buttons;
        openWith([&](QWidget* d) {
            caption = d->windowTitle();
            label = control<QLabel>(d, QStringLiteral("LabelNCards"))->text();
            auto* combo = control<QComboBox>(d, QStringLiteral("ComboNCards"));
            for (int i = 0; i < combo->count(); ++i)
                entries << combo->itemText(i);
            for (int i = 0; i < 4; ++i)
                captions << control<QLabel>(d, row("LabelCard", i))->text() << control<QLabel>(d, row("LabelID", i))->text()
                         << control<QLabel>(d, row("LabelNIn", i))->text() << control<QLabel>(d, row("LabelNOut", i))->text();
            buttons << control<QPushButton>(d, QStringLiteral("CommandOK"))->text()
                    << control<QPushButton>(d, QStringLiteral("CommandCancel"))->text();
            clickOn(d, QStringLiteral("CommandCancel"));
        });
        QCOMPARE(entries, (QStringList{"1", "2", "3", "4"}));
        QStringList expected;
        for (int i = 1; i <= 4; ++i)
            expected << QStringLiteral("Card %1:").arg(i) << "Card ID:" << "Number of Inputs:" << "Number of Outputs:";
        QCOMPARE(captions, expected);
        QCOMPARE(buttons, (QStringList{"OK", "Cancel"}));
        QCOMPARE(caption, QStringLiteral("Digital IO Setup"));
        QCOMPARE(label, QStringLiteral("Number of Digital IO Cards:"));
    }

    void theDialogShowsTheCardsOfTheTables()
    {
        QString selected;
        QStringList texts;
        QList<bool> visible;
        openWith([&](QWidget* d) {
            selected = control<QComboBox>(d, QStringLiteral("ComboNCards"))->currentText();
            texts << textOf(d, row("TextID", 0)) << textOf(d, row("TextNIn", 0)) << textOf(d, row("TextNOut", 0));
            visible = rowsShown(d);
            clickOn(d, QStringLiteral("CommandCancel"));
        });
        QCOMPARE(selected, QStringLiteral("1"));
        QCOMPARE(texts, (QStringList{"0", "32", "32"}));
        QCOMPARE(visible, (QList<bool>{true, false, false, false}));
    }

    void withNoCardsNothingIsSelectedAndOkGivesNone()
    {
        gNDigitalIO = 0;   // as an older file leaves it
        int index = 0;
        QList<bool> visible;
        openWith([&](QWidget* d) {
            index = control<QComboBox>(d, QStringLiteral("ComboNCards"))->currentIndex();
            visible = rowsShown(d);
            clickOn(d, QStringLiteral("CommandOK"));
        });
        QCOMPARE(index, -1);
        QCOMPARE(visible, (QList<bool>{false, false, false, false}));
        QCOMPARE(gNDigitalIO, 0);
        QVERIFY(gDirty);
    }

    void raisingTheCountFillsTheNewRowsFromTheTables()
    {
        gDigitalIOCardID(2) = 12;
        gDigitalIONIn(2) = 16;
        gDigitalIONOut(2) = 8;
        QStringList texts;
        QList<bool> visible;
        openWith([&](QWidget* d) {
            DialogDriver::pick(d, QStringLiteral("ComboNCards"), QStringLiteral("2"));
            typeIn(d, row("TextID", 1), QStringLiteral("99"));
            // Down to one card and up to three again: the rows come back with the tables' values.
            DialogDriver::pick(d, QStringLiteral("ComboNCards"), QStringLiteral("1"));
            DialogDriver::pick(d, QStringLiteral("ComboNCards"), QStringLiteral("3"));
            visible = rowsShown(d);
            texts << textOf(d, row("TextID", 1)) << textOf(d, row("TextNIn", 1))
                  << textOf(d, row("TextID", 2)) << textOf(d, row("TextNIn", 2)) << textOf(d, row("TextNOut", 2));
            clickOn(d, QStringLiteral("CommandCancel"));
        });
        QCOMPARE(visible, (QList<bool>{true, true, true, false}));
        QCOMPARE(texts, (QStringList{"1", "32", "12", "16", "8"}));
    }

    void aCountAboveFourIsHeldToFour()
    {
        gNDigitalIO = 9;
        QString selected;
        openWith([&](QWidget* d) {
            selected = control<QComboBox>(d, QStringLiteral("ComboNCards"))->currentText();
            clickOn(d, QStringLiteral("CommandCancel"));
        });
        QCOMPARE(selected, QStringLiteral("4"));
        QCOMPARE(gNDigitalIO, 4);
    }

    void okStoresTheCardsAndSaveAsWritesThem()
    {
        openWith([&](QWidget* d) {
            DialogDriver::pick(d, QStringLiteral("ComboNCards"), QStringLiteral("2"));
            typeIn(d, row("TextID", 0), QStringLiteral("5"));
            typeIn(d, row("TextNIn", 0), QStringLiteral("16"));
            typeIn(d, row("TextNOut", 0), QStringLiteral("8"));
            typeIn(d, row("TextID", 1), QStringLiteral("6"));
            typeIn(d, row("TextNIn", 1), QStringLiteral("many"));   // no number: the field stays
            typeIn(d, row("TextNOut", 1), QStringLiteral("4"));
            clickOn(d, QStringLiteral("CommandOK"));
        });
        QVERIFY(gDirty);
        QCOMPARE(gNDigitalIO, 2);
        QCOMPARE(gDigitalIONIn(1), 32);
        const QByteArray file = s.saveAsAndRead(QStringLiteral("dio.qel"));
        QVERIFY2(file.contains(fileLines({"; Number of Digital IO Cards:", " 2 ", "", "; Digital IO Card 1: ", " 5 ", " 16 ",
                                          " 8 ", "", "; Digital IO Card 2: ", " 6 ", " 32 ", " 4 ", "",
                                          "; Background Color:"})),
                 file.constData());

        s.reopen(QStringLiteral("dio.qel"));
        QCOMPARE(gNDigitalIO, 2);
        QCOMPARE(gDigitalIOCardID(0), 5);
        QCOMPARE(gDigitalIONIn(0), 16);
        QCOMPARE(gDigitalIONOut(1), 4);
    }

    void loadClearsTheUpdateFlagAndOkSetsIt()
    {
        {
            FormDigitalIOSetup dialog(s.form.get());
            const UpdateFlag ok = updateFlagAround(dialog, [](QWidget* d) { clickOn(d, QStringLiteral("CommandOK")); });
            QVERIFY2(ok.error.isEmpty(), qPrintable(ok.error));
            QVERIFY(!ok.atLoad);
            QVERIFY(ok.atClose);
        }
        FormDigitalIOSetup dialog(s.form.get());
        const UpdateFlag cancel = updateFlagAround(dialog, [](QWidget* d) { clickOn(d, QStringLiteral("CommandCancel")); });
        QVERIFY2(cancel.error.isEmpty(), qPrintable(cancel.error));
        QVERIFY(!cancel.atLoad);
        QVERIFY(!cancel.atClose);
    }

    void cancelChangesNothing()
    {
        openWith([&](QWidget* d) {
            DialogDriver::pick(d, QStringLiteral("ComboNCards"), QStringLiteral("3"));
            typeIn(d, row("TextID", 0), QStringLiteral("44"));
            clickOn(d, QStringLiteral("CommandCancel"));
        });
        QCOMPARE(gNDigitalIO, 1);
        QCOMPARE(gDigitalIOCardID(0), 0);
        QVERIFY(!gDirty);
        QVERIFY(!gMainConfig.m_bUpdate);
    }
};

QTEST_MAIN(TestDigitalIOSetup)
#include "test_digitalio.moc"
