// The I/O dialog of one Arduino board: the rows it creates when it loads, OK and
// Cancel, its scroll bar, and how it works inside the setup dialog.
#include <QtTest>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include "devices/FormArduinoConfig.h"
#include "devices/FormArduinoIO.h"
#include "model/CArduinoData.h"
#include "model/CMainConfig.h"
#include "model/ModuleGlobals.h"
#include "support/Controls.h"
#include "support/DialogDriver.h"
#include "support/TestData.h"
#include "mainwindow/MainWindowSession.h"

namespace {

template <typename T = QWidget>
T* control(QWidget* form, const QString& name)
{
    return DialogDriver::find<T>(form, name);
}

// How many controls of the form have a name made of `stem` and a row number.
int rowsNamed(QWidget* form, const QString& stem)
{
    const QRegularExpression pattern(QStringLiteral("^") + stem + QStringLiteral("\\d+$"));
    int n = 0;
    for (QWidget* w : form->findChildren<QWidget*>())
        n += pattern.match(w->objectName()).hasMatch();
    return n;
}

} // namespace

class TestArduinoIO : public QObject {
    Q_OBJECT
private:
    MainWindowSession session;
    QTemporaryDir dir;

    void openWith(FormArduinoIO& io, int board, int analog, int digital)
    {
        io.iArduino = static_cast<qint16>(board);
        io.iNumAnalog = static_cast<qint16>(analog);
        io.iNumDigital = static_cast<qint16>(digital);
        io.show();
    }

private slots:
    void init()
    {
        InitArduinoData();
        FormArduinoIO::cScroll.m_bCreated = false;
        gDirty = false;
        gMainConfig.m_bUpdate = false;
    }
    void cleanup() { session.stop(); }

    void rowsAreCreatedWithTheirNamesCaptionsAndPlaces()
    {
        gArduinoData(2).m_iMin(1) = 5;
        gArduinoData(2).m_iMax(1) = 600;
        gArduinoData(2).m_iDigitalType(3) = 2;
        gArduinoData(2).m_iDigitalType(4) = 0;
        FormArduinoIO io;
        openWith(io, 2, 2, 10);
        QCOMPARE(io.windowTitle(), QStringLiteral("Arduino IO Configuration"));
        QCOMPARE(io.LabelAnalogInputs->text(), QStringLiteral("Analog Inputs"));
        QCOMPARE(io.LabelDigitalIOs->text(), QStringLiteral("Digital IOs"));
        QCOMPARE(io.LabelMin->text(), QStringLiteral("Min"));
        QCOMPARE(io.LabelMax->text(), QStringLiteral("Max"));
        QCOMPARE(io.FrameOKCancel->title(), QStringLiteral("FrameOK"));
        QCOMPARE(io.CommandOK->parentWidget(), io.FrameOKCancel);
        QCOMPARE(rowsNamed(&io, "AnalogInput"), 2);
        QCOMPARE(rowsNamed(&io, "TxtMin"), 2);
        QCOMPARE(rowsNamed(&io, "TxtMax"), 2);
        QCOMPARE(rowsNamed(&io, "DigitalIO"), 10);
        QCOMPARE(rowsNamed(&io, "ComboDigital"), 10);

        auto* analog = control<QLabel>(&io, "AnalogInput1");
        QCOMPARE(analog->text(), QStringLiteral("Analog Input 1"));
        QVERIFY(analog->isVisible());
        QCOMPARE(analog->geometry(), QRect(io.LabelAnalogInputs->x(), Twips(1 * 300 + 1000), Twips(1600), Twips(230)));
        QVERIFY(analog->autoFillBackground());
        QCOMPARE(analog->palette().color(QPalette::Window), QColor(0xE0, 0xE0, 0xE0));
        auto* min = control<QLineEdit>(&io, "TxtMin1");
        QCOMPARE(min->text(), QStringLiteral("5"));
        QCOMPARE(min->x(), io.LabelMin->x());
        QCOMPARE(min->y(), analog->y());
        auto* max = control<QLineEdit>(&io, "TxtMax1");
        QCOMPARE(max->text(), QStringLiteral("600"));
        QCOMPARE(max->x(), io.LabelMax->x());
        QCOMPARE(control<QLineEdit>(&io, "TxtMin0")->text(), QStringLiteral("0"));
        QCOMPARE(control<QLineEdit>(&io, "TxtMax0")->text(), QStringLiteral("1023"));

        auto* digital = control<QLabel>(&io, "DigitalIO9");
        QCOMPARE(digital->text(), QStringLiteral("Digital IO 9"));
        QCOMPARE(digital->x(), io.LabelDigitalIOs->x());
        QCOMPARE(digital->y(), Twips(9 * 300 + 600));
        QCOMPARE(digital->height(), Twips(230));
        QCOMPARE(digital->palette().color(QPalette::Window), QColor(0xE0, 0xE0, 0xE0));
        auto* combo = control<QComboBox>(&io, "ComboDigital9");
        QCOMPARE(combo->x(), digital->x() + digital->width() + Twips(500));
        QCOMPARE(combo->y(), digital->y());
        QCOMPARE(combo->count(), 3);
        QCOMPARE(combo->itemText(0), QStringLiteral("PWM"));
        QCOMPARE(combo->itemText(1), QStringLiteral("IN"));
        QCOMPARE(combo->itemText(2), QStringLiteral("OUT"));
        QCOMPARE(combo->currentText(), QStringLiteral("IN"));
        QCOMPARE(control<QComboBox>(&io, "ComboDigital3")->currentText(), QStringLiteral("OUT"));
        QCOMPARE(control<QComboBox>(&io, "ComboDigital4")->currentText(), QStringLiteral("PWM"));
        io.CommandCancel->click();
    }

    void anUnconfiguredBoardOpenedFromTheSetupDialogShowsTwoAndTenRows()
    {
        QCOMPARE(gArduinoData(0).m_iNumAnalogInputs, qint16(32));
        QCOMPARE(gArduinoData(0).m_iNumDigitalIOs, qint16(96));
        FormArduinoConfig setup;
        setup.iNumArduinos = 1;
        setup.show();
        DialogDriver driver;
        int analog = -1, digital = -1;
        driver.next([&](QWidget* w) {
            analog = rowsNamed(w, "TxtMin");
            digital = rowsNamed(w, "ComboDigital");
            DialogDriver::click(w, QStringLiteral("CommandCancel"));
        });
        DialogDriver::click(&setup, QStringLiteral("ArduinoInOutConf(0)"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(driver.seen(), QStringList{QStringLiteral("Arduino IO Configuration")});
        QCOMPARE(analog, 2);
        QCOMPARE(digital, 10);
        QCOMPARE(gArduinoData(0).m_iNumAnalogInputs, qint16(32));
        setup.CommandCancel->click();
    }

    void okStoresTheRangesAndDirectionsOfTheRows()
    {
        gArduinoData(1).m_iMin(5) = 44;
        gArduinoData(1).m_iDigitalType(12) = 0;
        FormArduinoIO io;
        openWith(io, 1, 2, 10);
        DialogDriver::type(&io, QStringLiteral("TxtMin0"), QStringLiteral("12"));
        DialogDriver::type(&io, QStringLiteral("TxtMax0"), QStringLiteral("900"));
        DialogDriver::type(&io, QStringLiteral("TxtMin1"), QStringLiteral("700"));   // above its maximum: taken
        DialogDriver::pick(&io, QStringLiteral("ComboDigital3"), QStringLiteral("OUT"));
        DialogDriver::pick(&io, QStringLiteral("ComboDigital9"), QStringLiteral("PWM"));
        DialogDriver::click(&io, QStringLiteral("CommandOK"));
        QVERIFY(!io.isVisible());
        const CArduinoData& board = gArduinoData(1);
        QCOMPARE(board.m_iMin(0), qint16(12));
        QCOMPARE(board.m_iMax(0), qint16(900));
        QCOMPARE(board.m_iMin(1), qint16(700));
        QCOMPARE(board.m_iMax(1), qint16(1023));
        QCOMPARE(board.m_iDigitalType(3), qint16(2));
        QCOMPARE(board.m_iDigitalType(9), qint16(0));
        QCOMPARE(board.m_iDigitalType(0), qint16(1));
        // Entries beyond the rows are not touched.
        QCOMPARE(board.m_iMin(5), qint16(44));
        QCOMPARE(board.m_iDigitalType(12), qint16(0));
        QCOMPARE(gArduinoData(0).m_iMin(0), qint16(0));
        QCOMPARE(gDirty, true);
        QCOMPARE(gMainConfig.m_bUpdate, true);
        QCOMPARE(FormArduinoIO::cScroll.m_bCreated, false);
    }

    void aNumberThatIsNoNumberKeepsTheOldValueWithNoMessage()
    {
        gArduinoData(0).m_iMin(1) = 8;
        gArduinoData(0).m_iMax(1) = 88;
        FormArduinoIO io;
        openWith(io, 0, 2, 10);
        DialogDriver::type(&io, QStringLiteral("TxtMin1"), QStringLiteral("low"));
        DialogDriver::type(&io, QStringLiteral("TxtMax1"), QString());
        DialogDriver::type(&io, QStringLiteral("TxtMax0"), QStringLiteral("40000"));   // does not fit 16 bits
        DialogDriver driver;
        DialogDriver::click(&io, QStringLiteral("CommandOK"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(!io.isVisible());
        QCOMPARE(gArduinoData(0).m_iMin(1), qint16(8));
        QCOMPARE(gArduinoData(0).m_iMax(1), qint16(88));
        QCOMPARE(gArduinoData(0).m_iMax(0), qint16(1023));
        QCOMPARE(gDirty, true);
    }

    void cancelStoresNothingAndClearsTheMarks()
    {
        gDirty = true;
        gMainConfig.m_bUpdate = true;
        FormArduinoIO io;
        openWith(io, 0, 2, 10);
        DialogDriver::type(&io, QStringLiteral("TxtMin0"), QStringLiteral("12"));
        DialogDriver::pick(&io, QStringLiteral("ComboDigital0"), QStringLiteral("PWM"));
        DialogDriver::click(&io, QStringLiteral("CommandCancel"));
        QVERIFY(!io.isVisible());
        QCOMPARE(gArduinoData(0).m_iMin(0), qint16(0));
        QCOMPARE(gArduinoData(0).m_iDigitalType(0), qint16(1));
        QCOMPARE(gDirty, false);
        QCOMPARE(gMainConfig.m_bUpdate, false);
        QCOMPARE(FormArduinoIO::cScroll.m_bCreated, false);
    }

    void theInnerOKAndCancelSetTheMarksWhileTheSetupDialogIsOpenAndItsCancelUndoesNothing()
    {
        FormArduinoConfig setup;
        setup.iNumArduinos = 1;
        setup.show();
        DialogDriver ok;
        ok.next([](QWidget* w) {
            DialogDriver::type(w, QStringLiteral("TxtMin0"), QStringLiteral("7"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        DialogDriver::click(&setup, QStringLiteral("ArduinoInOutConf(0)"));
        QVERIFY2(ok.finished(), qPrintable(ok.error()));
        QCOMPARE(gMainConfig.m_bUpdate, true);
        QCOMPARE(gDirty, true);
        DialogDriver cancel;
        cancel.next([](QWidget* w) { DialogDriver::click(w, QStringLiteral("CommandCancel")); });
        DialogDriver::click(&setup, QStringLiteral("ArduinoInOutConf(0)"));
        QVERIFY2(cancel.finished(), qPrintable(cancel.error()));
        QCOMPARE(gMainConfig.m_bUpdate, false);
        QCOMPARE(gDirty, false);
        DialogDriver::click(&setup, QStringLiteral("CommandCancel"));
        QCOMPARE(gArduinoData(0).m_iMin(0), qint16(7));
    }

    void openedTwiceInARowTheRowsDoNotPileUpAndEachOpeningHasItsBar()
    {
        FormArduinoConfig setup;
        setup.iNumArduinos = 1;
        setup.show();
        for (int opening = 0; opening < 2; ++opening) {
            DialogDriver driver;
            int rows = -1, bars = -1;
            driver.next([&](QWidget* w) {
                rows = rowsNamed(w, "TxtMin") + rowsNamed(w, "DigitalIO");
                bars = w->findChildren<QScrollBar*>(QStringLiteral("ScrollBar1")).size();
                DialogDriver::click(w, QStringLiteral("CommandCancel"));
            });
            DialogDriver::click(&setup, QStringLiteral("ArduinoInOutConf(0)"));
            QVERIFY2(driver.finished(), qPrintable(driver.error()));
            QCOMPARE(rows, 12);
            QCOMPARE(bars, 1);
        }
        setup.CommandCancel->click();
    }

    void anIndexBeyondTheAnalogArraysEndsTheRowCreation()
    {
        FormArduinoIO io;
        openWith(io, 0, 33, 0);
        QCOMPARE(rowsNamed(&io, "TxtMin"), 32);
        QCOMPARE(rowsNamed(&io, "AnalogInput"), 32);
        QVERIFY(!io.findChild<QWidget*>(QStringLiteral("TxtMin32")));
        io.CommandCancel->click();
    }

    void theRowsOfABoardScrollUnderTheStripOfOKAndCancel()
    {
        FormArduinoIO io;
        openWith(io, 0, 2, 10);
        auto* bar = control<QScrollBar>(&io, "ScrollBar1");
        QVERIFY(bar->isVisible());
        // The last digital row ends lowest: its bottom, less the bar's height, plus 50.
        auto* last = control<QLabel>(&io, "DigitalIO9");
        QVERIFY(last->y() + last->height() > io.height());
        QCOMPARE(bar->height(), io.height() - io.FrameOKCancel->height());
        QCOMPARE(bar->maximum(), last->y() + last->height() - bar->height() + 50);
        QCOMPARE(bar->x(), io.width() - bar->width());
        const QPoint frame = io.FrameOKCancel->pos();
        const QPoint ok = io.CommandOK->pos();
        const int head = io.LabelDigitalIOs->y();
        const int row = last->y();
        const int combo = control(&io, "ComboDigital9")->y();
        bar->triggerAction(QAbstractSlider::SliderToMaximum);
        const int by = bar->maximum();
        QCOMPARE(last->y(), row - by);
        QCOMPARE(control(&io, "ComboDigital9")->y(), combo - by);
        QCOMPARE(io.LabelDigitalIOs->y(), head - by);
        QCOMPARE(io.FrameOKCancel->pos(), frame);
        QCOMPARE(io.CommandOK->pos(), ok);
        // Now the last row is above the strip.
        QVERIFY(last->y() + last->height() <= io.FrameOKCancel->y());
        io.CommandCancel->click();
    }

    void okThenSaveAsWritesTheBoardsFileByteForByte()
    {
        session.start();
        DialogDriver::pick(session.form.get(), QStringLiteral("ComboNArduinos"), QStringLiteral("1"));
        DialogDriver driver;
        driver.next([](QWidget* setup) {
            DialogDriver::click(setup, QStringLiteral("ArduinoInOutConf(0)"));
            DialogDriver::type(setup, QStringLiteral("TextLabel(0)"), QStringLiteral("Left glove"));
            DialogDriver::type(setup, QStringLiteral("TextCOMPort(0)"), QStringLiteral("7"));
            DialogDriver::click(setup, QStringLiteral("CommandOK"));
        });
        driver.next([](QWidget* io) {
            DialogDriver::type(io, QStringLiteral("TxtMin0"), QStringLiteral("12"));
            DialogDriver::type(io, QStringLiteral("TxtMax1"), QStringLiteral("800"));
            DialogDriver::type(io, QStringLiteral("TxtMin1"), QStringLiteral("x"));
            DialogDriver::pick(io, QStringLiteral("ComboDigital3"), QStringLiteral("OUT"));
            DialogDriver::pick(io, QStringLiteral("ComboDigital9"), QStringLiteral("PWM"));
            DialogDriver::click(io, QStringLiteral("CommandOK"));
        });
        DialogDriver::click(session.form.get(), QStringLiteral("ArduinoConfig"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(driver.seen(), (QStringList{"Arduino Configuration", "Arduino IO Configuration"}));
        const QString path = native(dir.filePath(QStringLiteral("Glove.qel")));
        session.saveAs(path);
        QCOMPARE(ReadBytes(dir.filePath(QStringLiteral("Glove/Arduino1.cfg"))),
                 QByteArray("; Arduino Label.\r\n"
                            "Left glove\r\n"
                            "\r\n"
                            "; COM Port, #Analog Inputs, #Digital IOs.\r\n"
                            "7,2,10\r\n"
                            "\r\n"
                            "Analog Inputs: Index,Min,Max\r\n"
                            "--------------------------------------------\r\n"
                            "0,12,1023\r\n"
                            "1,0,800\r\n"
                            "\r\n"
                            "Digital IOs: Index,DigType(IN, OUT or PWM)\r\n"
                            "--------------------------------------------\r\n"
                            "0,INPUT\r\n"
                            "1,INPUT\r\n"
                            "2,INPUT\r\n"
                            "3,OUTPUT\r\n"
                            "4,INPUT\r\n"
                            "5,INPUT\r\n"
                            "6,INPUT\r\n"
                            "7,INPUT\r\n"
                            "8,INPUT\r\n"
                            "9,PWM\r\n"
                            "\r\n"
                            "\r\n"));
        QVERIFY(ReadBytes(path).contains("\r\n; Number of Arduinos:\r\n 1 \r\n"));
        QVERIFY(ReadBytes(path).contains("\r\n; Arduinos Configuration Files:\r\nArduino1.cfg\r\n\r\n"));
    }
};

QTEST_MAIN(TestArduinoIO)
#include "test_arduinoio.moc"
