// The Arduino setup dialog: one row a board, the counts it fixes, the checks of
// OK and what they leave stored, Cancel, and the device panel's button.
#include <QtTest>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include "devices/FormArduinoConfig.h"
#include "model/CArduinoData.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/DialogDriver.h"
#include "support/TestData.h"
#include "mainwindow/MainWindowSession.h"

namespace {

struct Shown {
    QString text;
    QString title;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
};

DialogDriver::Action record(Shown& shown)
{
    return [&shown](QWidget* w) {
        shown.text = DialogDriver::text(w);
        shown.title = w->windowTitle();
        shown.icon = qobject_cast<QMessageBox*>(w)->icon();
        DialogDriver::press(w, QMessageBox::Ok);
    };
}

template <typename T = QWidget>
T* control(QWidget* form, const QString& name)
{
    return DialogDriver::find<T>(form, name);
}

// The digital rows of a board with every connection an input.
QByteArray inputRows(int from, int to)
{
    QByteArray rows;
    for (int i = from; i < to; ++i)
        rows += QByteArray::number(i) + ",INPUT\r\n";
    return rows;
}

} // namespace

class TestArduinoConfig : public QObject {
    Q_OBJECT
private:
    MainWindowSession session;
    QTemporaryDir dir;

    // Opens the dialog with `boards` rows, as the device panel does.
    void openWith(FormArduinoConfig& form, int boards)
    {
        form.iNumArduinos = static_cast<qint16>(boards);
        form.show();
    }

private slots:
    void init()
    {
        InitArduinoData();
        gDirty = false;
        gMainConfig.m_bUpdate = false;
    }
    void cleanup() { session.stop(); }

    void withNoBoardsTheButtonSaysSoAndOpensNothing()
    {
        session.start();
        QCOMPARE(session.form->ComboNArduinos->currentIndex(), 0);
        DialogDriver driver;
        Shown shown;
        driver.next(record(shown));
        DialogDriver::click(session.form.get(), QStringLiteral("ArduinoConfig"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(driver.seen().size(), 1);
        QCOMPARE(shown.text, QStringLiteral("No Arduinos!"));
        QCOMPARE(shown.title, QStringLiteral("QEL Setup"));
        QCOMPARE(shown.icon, QMessageBox::Warning);
    }

    void aCountListWithNoEntryChosenSaysThereAreNoBoards()
    {
        session.start();
        // A performance whose board count lies beyond the list leaves no entry chosen.
        gMainConfig.m_iNArduinos = 17;
        session.form->ShowDeviceCounts();
        QCOMPARE(session.form->ComboNArduinos->currentIndex(), -1);
        DialogDriver driver;
        Shown shown;
        driver.next(record(shown));
        DialogDriver::click(session.form.get(), QStringLiteral("ArduinoConfig"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(driver.seen().size(), 1);
        QCOMPARE(shown.text, QStringLiteral("No Arduinos!"));
        QCOMPARE(shown.title, QStringLiteral("QEL Setup"));
        QCOMPARE(shown.icon, QMessageBox::Warning);
    }

    void theButtonOpensTheDialogWithARowForEachBoardOfTheCount()
    {
        session.start();
        DialogDriver::pick(session.form.get(), QStringLiteral("ComboNArduinos"), QStringLiteral("2"));
        DialogDriver driver;
        QString title;
        QList<bool> shownRows;
        driver.next([&](QWidget* w) {
            title = w->windowTitle();
            for (int i = 0; i < 3; ++i)
                shownRows << control(w, arrayName(QStringLiteral("TextLabel"), i))->isVisible();
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        DialogDriver::click(session.form.get(), QStringLiteral("ArduinoConfig"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(driver.seen(), QStringList{QStringLiteral("Arduino Configuration")});
        QCOMPARE(title, QStringLiteral("Arduino Configuration"));
        QCOMPARE(shownRows, (QList<bool>{true, true, false}));
        QCOMPARE(gDirty, true);
        QCOMPARE(gMainConfig.m_bUpdate, false);   // the opener clears it again
        QCOMPARE(gArduinoData(1).m_iNumDigitalIOs, qint16(10));
    }

    void openedTwiceInARowTheDialogHasOneSetOfRows()
    {
        session.start();
        DialogDriver::pick(session.form.get(), QStringLiteral("ComboNArduinos"), QStringLiteral("3"));
        for (int opening = 0; opening < 2; ++opening) {
            DialogDriver driver;
            int labels = -1, shown = -1;
            driver.next([&](QWidget* w) {
                labels = w->findChildren<QLineEdit*>(QStringLiteral("TextLabel(0)")).size();
                shown = 0;
                for (auto* edit : w->findChildren<QLineEdit*>())
                    shown += edit->isVisible();
                DialogDriver::click(w, QStringLiteral("CommandCancel"));
            });
            DialogDriver::click(session.form.get(), QStringLiteral("ArduinoConfig"));
            QVERIFY2(driver.finished(), qPrintable(driver.error()));
            QCOMPARE(labels, 1);
            QCOMPARE(shown, 6);   // a label and a port for each of the three boards
        }
    }

    void rowsShowTheRecordsWithTheCountsFixedAtTwoAndTen()
    {
        gArduinoData(1).m_strLabel = QStringLiteral("Right hand");
        gArduinoData(1).m_iCOMPort = 4;
        gMainConfig.m_bUpdate = true;
        FormArduinoConfig form;
        openWith(form, 3);
        QCOMPARE(gMainConfig.m_bUpdate, false);
        for (int i = 0; i < 16; ++i) {
            const bool inUse = i < 3;
            QCOMPARE(control<QLabel>(&form, arrayName("Label", i))->text(), QStringLiteral("Arduino %1:").arg(i + 1));
            for (const char* name : {"Label", "TextLabel", "TextCOMPort", "NumberAnalogIn", "NumberDigitalIO", "ArduinoInOutConf"})
                QCOMPARE(control(&form, arrayName(QString::fromLatin1(name), i))->isVisible(), inUse);
        }
        QCOMPARE(control<QLineEdit>(&form, "TextLabel(1)")->text(), QStringLiteral("Right hand"));
        QCOMPARE(control<QLineEdit>(&form, "TextCOMPort(1)")->text(), QStringLiteral("4"));
        QCOMPARE(control<QLineEdit>(&form, "TextLabel(0)")->text(), QStringLiteral("Arduino 1"));
        auto* analog = control<QComboBox>(&form, "NumberAnalogIn(2)");
        QCOMPARE(analog->count(), 33);
        QCOMPARE(analog->itemText(32), QStringLiteral("32"));
        QCOMPARE(analog->currentText(), QStringLiteral("2"));
        QVERIFY(!analog->isEnabled());
        auto* digital = control<QComboBox>(&form, "NumberDigitalIO(2)");
        QCOMPARE(digital->count(), 97);
        QCOMPARE(digital->itemText(96), QStringLiteral("96"));
        QCOMPARE(digital->currentText(), QStringLiteral("10"));
        QVERIFY(!digital->isEnabled());
        QCOMPARE(control<QPushButton>(&form, "ArduinoInOutConf(0)")->text(), QStringLiteral("I/O Config"));
        QCOMPARE(control<QLabel>(&form, "LabelLabel")->text(), QStringLiteral("Label:"));
        QCOMPARE(control<QLabel>(&form, "LabelCOMPort")->text(), QStringLiteral("COM Port:"));
        QCOMPARE(control<QLabel>(&form, "LabelAnalogIn")->text(), QStringLiteral("#Analog Inputs:"));
        QCOMPARE(control<QLabel>(&form, "LabelDigitalIO")->text(), QStringLiteral("#Digital I/O:"));
        // OK and Cancel follow the last row; the form ends under them.
        QCOMPARE(form.CommandOK->y(), Twips(3 * 480 + 1050));
        QCOMPARE(form.CommandCancel->y(), Twips(3 * 480 + 1050));
        QCOMPARE(form.height(), Twips(3 * 480 + 2000));
        // The row after the last stays out of view.
        QVERIFY(control(&form, "TextLabel(3)")->isHidden());
        QVERIFY(gArduinoData(2).m_iNumAnalogInputs == 32 && gArduinoData(2).m_iNumDigitalIOs == 96);
        form.CommandCancel->click();
    }

    void aLabelOfBlanksFailsTheCheck()
    {
        FormArduinoConfig form;
        openWith(form, 1);
        DialogDriver::type(&form, QStringLiteral("TextLabel(0)"), QStringLiteral("   "));
        DialogDriver driver;
        Shown shown;
        driver.next(record(shown));
        DialogDriver::click(&form, QStringLiteral("CommandOK"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(shown.text, QStringLiteral("You have to enter a label for every Arduino"));
        QCOMPARE(shown.title, QStringLiteral("QEL Setup"));
        QCOMPARE(shown.icon, QMessageBox::NoIcon);
        QVERIFY(form.isVisible());
        QCOMPARE(gArduinoData(0).m_strLabel, QStringLiteral("Arduino 1"));
        QCOMPARE(gDirty, false);
        QCOMPARE(gMainConfig.m_bUpdate, false);
        form.CommandCancel->click();
    }

    void aLabelWithABlankAtItsEndIsStoredWithTheBlank()
    {
        FormArduinoConfig form;
        openWith(form, 1);
        DialogDriver::type(&form, QStringLiteral("TextLabel(0)"), QStringLiteral("Left glove "));
        DialogDriver driver;   // no message may come
        DialogDriver::click(&form, QStringLiteral("CommandOK"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(!form.isVisible());
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE(gArduinoData(0).m_strLabel, QStringLiteral("Left glove "));
        QCOMPARE(gDirty, true);
        QCOMPARE(gMainConfig.m_bUpdate, true);
    }

    void aMissingCOMPortOnTheSecondBoardLeavesTheFirstBoardAndTheSecondLabelStored()
    {
        FormArduinoConfig form;
        openWith(form, 2);
        DialogDriver::type(&form, QStringLiteral("TextLabel(0)"), QStringLiteral("Left"));
        DialogDriver::type(&form, QStringLiteral("TextCOMPort(0)"), QStringLiteral("3"));
        DialogDriver::type(&form, QStringLiteral("TextLabel(1)"), QStringLiteral("Right"));
        DialogDriver::type(&form, QStringLiteral("TextCOMPort(1)"), QStringLiteral(" "));
        DialogDriver driver;
        Shown shown;
        driver.next(record(shown));
        DialogDriver::click(&form, QStringLiteral("CommandOK"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(shown.text, QStringLiteral("Enter a COM port for every Arduino"));
        QCOMPARE(shown.title, QStringLiteral("QEL Setup"));
        QCOMPARE(shown.icon, QMessageBox::NoIcon);
        QVERIFY(form.isVisible());
        QCOMPARE(gArduinoData(0).m_strLabel, QStringLiteral("Left"));
        QCOMPARE(gArduinoData(0).m_iCOMPort, qint16(3));
        QCOMPARE(gArduinoData(0).m_iNumAnalogInputs, qint16(2));
        QCOMPARE(gArduinoData(0).m_iNumDigitalIOs, qint16(10));
        QCOMPARE(gArduinoData(1).m_strLabel, QStringLiteral("Right"));
        QCOMPARE(gArduinoData(1).m_iCOMPort, qint16(1));
        QCOMPARE(gArduinoData(1).m_iNumAnalogInputs, qint16(32));
        QCOMPARE(gArduinoData(1).m_iNumDigitalIOs, qint16(96));
        // Cancel undoes nothing of it.
        DialogDriver::click(&form, QStringLiteral("CommandCancel"));
        QVERIFY(!form.isVisible());
        QCOMPARE(gArduinoData(0).m_strLabel, QStringLiteral("Left"));
        QCOMPARE(gArduinoData(0).m_iCOMPort, qint16(3));
        QCOMPARE(gArduinoData(0).m_iNumAnalogInputs, qint16(2));
        QCOMPARE(gArduinoData(1).m_strLabel, QStringLiteral("Right"));
    }

    void countBoxesWithNoEntryGiveTheirOwnMessages()
    {
        // The count boxes are disabled with an entry chosen; with none chosen their text is empty.
        FormArduinoConfig form;
        openWith(form, 1);
        control<QComboBox>(&form, "NumberAnalogIn(0)")->setCurrentIndex(-1);
        DialogDriver driver;
        Shown analog;
        driver.next(record(analog));
        DialogDriver::click(&form, QStringLiteral("CommandOK"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(analog.text, QStringLiteral("You have to enter the number of analog inputs for every Arduino"));
        QCOMPARE(analog.title, QStringLiteral("QEL Setup"));
        QCOMPARE(analog.icon, QMessageBox::NoIcon);
        QCOMPARE(gArduinoData(0).m_iNumAnalogInputs, qint16(32));

        control<QComboBox>(&form, "NumberAnalogIn(0)")->setCurrentIndex(2);
        control<QComboBox>(&form, "NumberDigitalIO(0)")->setCurrentIndex(-1);
        DialogDriver second;
        Shown digital;
        second.next(record(digital));
        DialogDriver::click(&form, QStringLiteral("CommandOK"));
        QVERIFY2(second.finished(), qPrintable(second.error()));
        QCOMPARE(digital.text, QStringLiteral("You have to enter the number of digital connections for every Arduino"));
        QCOMPARE(digital.title, QStringLiteral("QEL Setup"));
        QCOMPARE(digital.icon, QMessageBox::NoIcon);
        QCOMPARE(gArduinoData(0).m_iNumAnalogInputs, qint16(2));
        QCOMPARE(gArduinoData(0).m_iNumDigitalIOs, qint16(96));
        QVERIFY(form.isVisible());
        QCOMPARE(gDirty, false);
        form.CommandCancel->click();
    }

    void aCOMPortThatIsNoNumberKeepsTheOldPortWithNoMessage()
    {
        gArduinoData(0).m_iCOMPort = 5;
        FormArduinoConfig form;
        openWith(form, 1);
        DialogDriver::type(&form, QStringLiteral("TextCOMPort(0)"), QStringLiteral("COM3"));
        DialogDriver driver;
        DialogDriver::click(&form, QStringLiteral("CommandOK"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(!form.isVisible());
        QCOMPARE(gArduinoData(0).m_iCOMPort, qint16(5));
        QCOMPARE(gArduinoData(0).m_iNumDigitalIOs, qint16(10));
        QCOMPARE(gDirty, true);
    }

    void cancelClearsTheUnsavedChangesMark()
    {
        gDirty = true;
        FormArduinoConfig form;
        openWith(form, 2);
        DialogDriver::type(&form, QStringLiteral("TextLabel(0)"), QStringLiteral("Not kept"));
        DialogDriver::click(&form, QStringLiteral("CommandCancel"));
        QVERIFY(!form.isVisible());
        QCOMPARE(form.result(), int(QDialog::Rejected));
        QCOMPARE(gDirty, false);
        QCOMPARE(gMainConfig.m_bUpdate, false);
        QCOMPARE(gArduinoData(0).m_strLabel, QStringLiteral("Arduino 1"));
        QCOMPARE(gArduinoData(0).m_iNumAnalogInputs, qint16(32));
    }

    void afterTheFirstOKANewBoardHoldsTwoAndTenAndItsFileHasTwelveRows()
    {
        session.start();
        DialogDriver::pick(session.form.get(), QStringLiteral("ComboNArduinos"), QStringLiteral("1"));
        QCOMPARE(gArduinoData(0).m_iNumAnalogInputs, qint16(32));
        DialogDriver driver;
        driver.next([](QWidget* w) { DialogDriver::click(w, QStringLiteral("CommandOK")); });
        DialogDriver::click(session.form.get(), QStringLiteral("ArduinoConfig"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(gArduinoData(0).m_iNumAnalogInputs, qint16(2));
        QCOMPARE(gArduinoData(0).m_iNumDigitalIOs, qint16(10));
        const QString path = native(dir.filePath(QStringLiteral("OneBoard.qel")));
        session.saveAs(path);
        QCOMPARE(ReadBytes(dir.filePath(QStringLiteral("OneBoard/Arduino1.cfg"))),
                 QByteArray("; Arduino Label.\r\n"
                            "Arduino 1\r\n"
                            "\r\n"
                            "; COM Port, #Analog Inputs, #Digital IOs.\r\n"
                            "1,2,10\r\n"
                            "\r\n"
                            "Analog Inputs: Index,Min,Max\r\n"
                            "--------------------------------------------\r\n"
                            "0,0,1023\r\n"
                            "1,0,1023\r\n"
                            "\r\n"
                            "Digital IOs: Index,DigType(IN, OUT or PWM)\r\n"
                            "--------------------------------------------\r\n")
                     + inputRows(0, 10) + QByteArray("\r\n\r\n"));
    }

    void okThenSaveAsWritesTheLabelsPortsAndFileNames()
    {
        session.start();
        DialogDriver::pick(session.form.get(), QStringLiteral("ComboNArduinos"), QStringLiteral("2"));
        DialogDriver driver;
        driver.next([](QWidget* w) {
            DialogDriver::type(w, QStringLiteral("TextLabel(0)"), QStringLiteral("Left, glove "));
            DialogDriver::type(w, QStringLiteral("TextCOMPort(0)"), QStringLiteral("7"));
            DialogDriver::type(w, QStringLiteral("TextLabel(1)"), QStringLiteral("Pedal"));
            DialogDriver::type(w, QStringLiteral("TextCOMPort(1)"), QStringLiteral("12"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        DialogDriver::click(session.form.get(), QStringLiteral("ArduinoConfig"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        const QString path = native(dir.filePath(QStringLiteral("TwoBoards.qel")));
        session.saveAs(path);
        const QByteArray main = ReadBytes(path);
        QVERIFY(main.contains("\r\n\r\n; Number of Arduinos:\r\n 2 \r\n\r\n"));
        QVERIFY(main.contains("\r\n\r\n; Arduinos Configuration Files:\r\nArduino1.cfg\r\nArduino2.cfg\r\n\r\n; Movies Width:\r\n"));
        const QByteArray head = "\r\n"
                                "; COM Port, #Analog Inputs, #Digital IOs.\r\n";
        QVERIFY(ReadBytes(dir.filePath(QStringLiteral("TwoBoards/Arduino1.cfg")))
                    .startsWith("; Arduino Label.\r\nLeft, glove \r\n" + head + "7,2,10\r\n\r\n"));
        QVERIFY(ReadBytes(dir.filePath(QStringLiteral("TwoBoards/Arduino2.cfg")))
                    .startsWith("; Arduino Label.\r\nPedal\r\n" + head + "12,2,10\r\n\r\n"));
        QVERIFY(!QFileInfo::exists(dir.filePath(QStringLiteral("TwoBoards/Arduino3.cfg"))));
    }
};

QTEST_MAIN(TestArduinoConfig)
#include "test_arduinoconfig.moc"
