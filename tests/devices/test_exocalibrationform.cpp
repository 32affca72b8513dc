// The calibration dialog as the operator opens it from the main window: what
// it shows, what OK and Cancel hand back, the two suits and their ports.
#include "ExoCalibrationSession.h"
#include <QGroupBox>
#include "mainwindow/MainWindowSession.h"

namespace {

const SuitFrame kRamp = frameOf([](int c) { return 3 * c; });

SuitOptions scripted(int id)
{
    SuitOptions o;
    o.id = id;
    o.script = {kRamp};
    return o;
}

QComboBox* combo(QWidget* form, const QString& name) { return DialogDriver::find<QComboBox>(form, name); }
QLineEdit* edit(QWidget* form, const QString& name) { return DialogDriver::find<QLineEdit>(form, name); }

QStringList entries(QComboBox* c)
{
    QStringList list;
    for (int i = 0; i < c->count(); ++i)
        list << c->itemText(i);
    return list;
}

// Stops a run on a modal dialog once `condition` holds, then clicks `then`.
void runThen(QWidget* form, std::function<bool()> condition, const char* then)
{
    when(form, std::move(condition), [form] { DialogDriver::click(form, QStringLiteral("CommandAuto")); });
    DialogDriver::click(form, QStringLiteral("CommandAuto"));
    DialogDriver::click(form, QString::fromLatin1(then));
}

}  // namespace

class TestExoCalibrationForm : public QObject {
    Q_OBJECT
private:
    MainWindowSession window;
    CalibrationSession s;

    // Opens the dialog with the main window's button; `act` runs on it.
    void openFromMainWindow(std::function<void(QWidget*)> act)
    {
        DialogDriver driver(20000);
        driver.next(std::move(act));
        DialogDriver::click(window.form.get(), QStringLiteral("ExoskeletonsCalibration"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
    }

private slots:
    void initTestCase() { window.start(); }
    void init()
    {
        window.form->CommandRules_Click();
        CalibrationSession::resetModel(2);
        gMainConfig.m_iExo1Port = 1;
        gMainConfig.m_iExo2Port = 2;
    }
    void cleanup() { s.form.reset(); }
    void cleanupTestCase() { window.stop(); }

    void loadShowsTheFirstSuit()
    {
        gExoData(0).m_iID = 2;
        gExoData(0).m_iChannel(3) = 17;
        gExoData(0).m_iMin(3) = 12;
        gExoData(0).m_iMax(3) = 240;
        gMainConfig.m_iExo1Port = 4;
        s.open();
        QCOMPARE(s.form->windowTitle(), QStringLiteral("Exoskeleton Calibration"));
        QCOMPARE(entries(combo(s.form.get(), "ComboExo")), (QStringList{"1", "2"}));
        QCOMPARE(combo(s.form.get(), "ComboExo")->currentText(), QStringLiteral("1"));
        QCOMPARE(entries(combo(s.form.get(), "ComboID")), (QStringList{"1", "2"}));
        QCOMPARE(combo(s.form.get(), "ComboID")->currentText(), QStringLiteral("2"));
        QStringList channels;
        for (int c = 1; c <= 32; ++c)
            channels << QString::number(c);
        QCOMPARE(entries(combo(s.form.get(), "ComboChannel(28)")), channels);
        QCOMPARE(combo(s.form.get(), "ComboChannel(3)")->currentText(), QStringLiteral("17"));
        QCOMPARE(combo(s.form.get(), "ComboChannel(28)")->currentText(), QStringLiteral("29"));
        QCOMPARE(s.textMin(3)->text(), QStringLiteral("12"));
        QCOMPARE(s.textMax(3)->text(), QStringLiteral("240"));
        QCOMPARE(s.textMax(0)->text(), QStringLiteral("255"));
        QCOMPARE(edit(s.form.get(), "TextExoPort")->text(), QStringLiteral("4"));
        QCOMPARE(s.button("CommandAuto")->text(), kStartCaption);
        QCOMPARE(s.errors(), QString());
        QCOMPARE(s.control<QGroupBox>(QStringLiteral("Frame1"))->title(), QStringLiteral("Calibration Data"));
        QCOMPARE(s.control<QLabel>(QStringLiteral("LabelExoPort"))->text(), QStringLiteral("COM Port"));
        QCOMPARE(s.control<QLabel>(QStringLiteral("Label14"))->text(), QStringLiteral("ID"));
        QCOMPARE(s.control<QLabel>(QStringLiteral("Label13"))->text(), QStringLiteral("Errors:"));
        QCOMPARE(s.control<QLabel>(QStringLiteral("Label2"))->text(), QStringLiteral("Exoskeleton"));
    }

    void rowCaptionsAndKindsAreFixed()
    {
        gExoData(0).m_iType(0) = 3;
        s.open();
        QStringList captions, kinds;
        for (int row = 0; row < kExoRows; ++row) {
            captions << s.control<QLabel>(QStringLiteral("Label3(%1)").arg(row))->text();
            kinds << s.control<QLabel>(QStringLiteral("LabelType(%1)").arg(row))->text();
        }
        QCOMPARE(captions, (QStringList{"CI", "CD", "HI", "HD", "RI", "RD", "II", "ID", "FCI", "FCD",
                                        "P1", "P2", "P3", "P4", "P5", "P6", "DI1", "DI2", "DD1", "DD2",
                                        "IHgI", "IHgD", "IPI", "IPD", "IC", "C1 y C2", "C3 y C4", "C5 y C6", "SEL"}));
        QStringList expected;
        for (int row = 0; row < kExoRows; ++row)
            expected << (row <= 7 ? "Range" : row <= 24 ? "On/Off" : row <= 27 ? "Double" : "Selector");
        QCOMPARE(kinds, expected);
    }

    void rowsStandInTwoColumns()
    {
        s.open();
        const int leftX = s.textMin(0)->mapTo(s.form.get(), QPoint()).x();
        int lastLeftY = -1, lastRightY = -1;
        for (int row : {0, 1, 2, 3, 4, 5, 6, 7, 10, 11, 12, 13, 14, 15}) {
            const QPoint p = s.textMin(row)->mapTo(s.form.get(), QPoint());
            QCOMPARE(p.x(), leftX);
            QVERIFY(p.y() > lastLeftY);
            lastLeftY = p.y();
        }
        const int rightX = s.textMin(8)->mapTo(s.form.get(), QPoint()).x();
        QVERIFY(rightX > leftX);
        for (int row : {8, 9, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28}) {
            const QPoint p = s.textMin(row)->mapTo(s.form.get(), QPoint());
            QCOMPARE(p.x(), rightX);
            QVERIFY(p.y() > lastRightY);
            lastRightY = p.y();
        }
    }

    void withNoSuitTheDialogSaysSoAndDoesNotShow()
    {
        gMainConfig.m_iNExos = 0;
        DialogDriver driver;
        QString text;
        driver.next([&](QWidget* w) {
            text = DialogDriver::text(w);
            DialogDriver::press(w, QMessageBox::Ok);
        });
        FormExoCalibration form;
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(text, QStringLiteral("No Exoskeletons!"));
        QCOMPARE(form.exec(), int(QDialog::Rejected));
        QVERIFY(!form.isVisible());
    }

    void withACountBelowOneTheOpenerSaysSoAndTouchesNothing()
    {
        gMainConfig.m_iNExos = -1;
        gMainConfig.m_bUpdate = true;
        gExoDataEdit(0).m_iID = 7;
        DialogDriver driver;
        QString text;
        driver.next([&](QWidget* w) {
            text = DialogDriver::text(w);
            DialogDriver::press(w, QMessageBox::Ok);
        });
        DialogDriver::click(window.form.get(), QStringLiteral("ExoskeletonsCalibration"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(text, QStringLiteral("No Exoskeletons!"));
        // Neither the copies nor m_bUpdate were touched.
        QCOMPARE(gExoDataEdit(0).m_iID, qint16(7));
        QVERIFY(gMainConfig.m_bUpdate);
        gMainConfig.m_bUpdate = false;
    }

    void anIdentityOrChannelOutsideTheListShowsNoEntryAndOkStoresZero()
    {
        gExoData(0).m_iID = 3;
        gExoData(0).m_iChannel(4) = 40;
        gExoData(0).m_iChannel(5) = 0;
        s.open();
        QCOMPARE(combo(s.form.get(), "ComboID")->currentText(), QString());
        QCOMPARE(combo(s.form.get(), "ComboID")->currentIndex(), -1);
        QCOMPARE(combo(s.form.get(), "ComboChannel(4)")->currentText(), QString());
        QCOMPARE(combo(s.form.get(), "ComboChannel(5)")->currentText(), QString());
        QCOMPARE(combo(s.form.get(), "ComboChannel(6)")->currentText(), QStringLiteral("7"));
        s.click("CommandOK");
        QCOMPARE(gExoDataEdit(0).m_iID, qint16(0));
        QCOMPARE(gExoDataEdit(0).m_iChannel(4), qint16(0));
        QCOMPARE(gExoDataEdit(0).m_iChannel(5), qint16(0));
        QCOMPARE(gExoDataEdit(0).m_iChannel(6), qint16(7));
    }

    void okFromTheMainWindowCopiesBack()
    {
        gExoData(0).m_strItem(0) = QStringLiteral("kept");
        gExoDataEdit(0).m_strItem(0) = QStringLiteral("edit");
        gExoData(0).m_iType(4) = 2;
        openFromMainWindow([](QWidget* w) {
            DialogDriver::type(w, QStringLiteral("TextMin(4)"), QStringLiteral("44"));
            DialogDriver::type(w, QStringLiteral("TextMax(4)"), QStringLiteral("abc"));
            DialogDriver::type(w, QStringLiteral("TextExoPort"), QStringLiteral("6"));
            DialogDriver::pick(w, QStringLiteral("ComboID"), QStringLiteral("2"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        QCOMPARE(gExoData(0).m_iMin(4), qint16(44));
        QCOMPARE(gExoData(0).m_iMax(4), qint16(0));
        QCOMPARE(gExoData(0).m_iID, qint16(2));
        QCOMPARE(gExoData(0).m_iType(4), qint16(2));
        QCOMPARE(gExoData(0).m_strItem(0), QStringLiteral("kept"));
        QCOMPARE(gExoDataEdit(0).m_strItem(0), QStringLiteral("edit"));
        QCOMPARE(gMainConfig.m_iExo1Port, qint16(6));
        QVERIFY(gDirty);
        QVERIFY(!gMainConfig.m_bUpdate);
    }

    void withOneSuitTheSecondIsWrittenBackUnchanged()
    {
        gMainConfig.m_iNExos = 1;
        gMainConfig.m_iExo2Port = 7;
        gExoData(1).m_iID = 2;
        for (int row = 0; row < kExoRows; ++row) {
            gExoData(1).m_iChannel(row) = static_cast<qint16>(32 - row);
            gExoData(1).m_iMin(row) = static_cast<qint16>(row);
            gExoData(1).m_iMax(row) = static_cast<qint16>(200 - row);
        }
        const CExoData second = gExoData(1);
        QStringList suits;
        openFromMainWindow([&](QWidget* w) {
            suits = entries(combo(w, "ComboExo"));
            DialogDriver::type(w, QStringLiteral("TextMin(0)"), QStringLiteral("9"));
            DialogDriver::type(w, QStringLiteral("TextExoPort"), QStringLiteral("3"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        QCOMPARE(suits, QStringList{"1"});
        QCOMPARE(gExoData(0).m_iMin(0), qint16(9));
        QCOMPARE(gMainConfig.m_iExo1Port, qint16(3));
        QCOMPARE(gMainConfig.m_iExo2Port, qint16(7));
        QCOMPARE(gExoData(1).m_iID, second.m_iID);
        for (int row = 0; row < kExoRows; ++row) {
            QCOMPARE(gExoData(1).m_iChannel(row), second.m_iChannel(row));
            QCOMPARE(gExoData(1).m_iMin(row), second.m_iMin(row));
            QCOMPARE(gExoData(1).m_iMax(row), second.m_iMax(row));
            QCOMPARE(gExoData(1).m_iType(row), second.m_iType(row));
        }
    }

    void cancelAfterARunKeepsOnlyTheTypedChannel()
    {
        gMainConfig.m_iNExos = 1;
        gDirty = true;
        Suit suit(1, scripted(1));
        openFromMainWindow([&](QWidget* w) {
            DialogDriver::type(w, QStringLiteral("ComboChannel(0)"), QStringLiteral("12"));
            runThen(w, [&] { return suit.sim().answerCount() >= 3; }, "CommandCancel");
        });
        QVERIFY(suit.sim().answerCount() >= 3);
        QCOMPARE(gExoData(0).m_iChannel(0), qint16(12));
        QCOMPARE(gExoData(0).m_iMin(0), qint16(0));
        QCOMPARE(gExoData(0).m_iMax(0), qint16(255));
        QCOMPARE(gExoData(0).m_iMin(5), qint16(0));
        QCOMPARE(gExoData(0).m_iMax(5), qint16(255));
        // Cancel also forgets the changes made before the dialog.
        QVERIFY(!gDirty);
        QVERIFY(!gMainConfig.m_bUpdate);
    }

    void okAfterARunKeepsTheSampledRanges()
    {
        gMainConfig.m_iNExos = 1;
        Suit suit(1, scripted(1));
        openFromMainWindow([&](QWidget* w) {
            auto* max = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextMax(28)"));
            runThen(w, [max] { return max->text() == QString::number(kRamp[28]); }, "CommandOK");
        });
        for (int row = 0; row < kExoRows; ++row) {
            QCOMPARE(gExoData(0).m_iMin(row), qint16(kRamp[row]));
            QCOMPARE(gExoData(0).m_iMax(row), qint16(kRamp[row]));
        }
    }

    void aSecondSuitChosenWhileRunningClosesThePortAndKeepsTheButtons()
    {
        Suit first(1, scripted(1));
        Suit second(2, scripted(2));
        s.open();
        std::size_t firstAtSwitch = 0;
        bool stillStopCaption = false;
        s.run([&] {
            when(s.form.get(), [&] { return first.sim().answerCount() >= 3; }, [&] {
                DialogDriver::pick(s.form.get(), QStringLiteral("ComboExo"), QStringLiteral("2"));
                firstAtSwitch = first.requests();
            });
        });
        stillStopCaption = s.button("CommandAuto")->text() == kStopCaption;
        QVERIFY(stillStopCaption);
        QVERIFY(!s.button("CommandOK")->isEnabled());
        QVERIFY(!s.button("CommandCancel")->isEnabled());
        QVERIFY(!s.form->MSComm1.portOpen());
        // The request in flight at the switch may reach the first suit after it; none follows.
        const std::size_t firstSettled = settledRequests(first);
        QVERIFY2(firstSettled <= firstAtSwitch + 1,
                 qPrintable(QStringLiteral("%1 after %2").arg(firstSettled).arg(firstAtSwitch)));
        QCOMPARE(second.requests(), std::size_t(0));
        QCOMPARE(edit(s.form.get(), "TextExoPort")->text(), QStringLiteral("2"));

        // The next click starts a run on the second suit, and the one after stops it.
        s.run([&] {
            s.stopWhen([&] { return second.requests() >= 3 && s.textMax(0)->text() == QString::number(kRamp[0]); });
        });
        QCOMPARE(first.requests(), firstSettled);
        QVERIFY(second.requests() >= 3);
        QCOMPARE(int(second.sim().requests().front()[1]), 2);
        QCOMPARE(s.button("CommandAuto")->text(), kStartCaption);
        QVERIFY(s.button("CommandOK")->isEnabled());
        QVERIFY(s.button("CommandCancel")->isEnabled());
        QCOMPARE(s.textMin(0)->text(), QString::number(kRamp[0]));
    }

    void choosingTheOtherSuitStoresTheShownOneAndShowsThePortOfTheMainConfiguration()
    {
        gMainConfig.m_iExo1Port = 1;
        gMainConfig.m_iExo2Port = 2;
        gExoData(1).m_iMin(0) = 77;
        s.open();
        DialogDriver::type(s.form.get(), QStringLiteral("TextMin(0)"), QStringLiteral("11"));
        DialogDriver::type(s.form.get(), QStringLiteral("TextExoPort"), QStringLiteral("5"));
        DialogDriver::pick(s.form.get(), QStringLiteral("ComboExo"), QStringLiteral("2"));
        QCOMPARE(gExoDataEdit(0).m_iMin(0), qint16(11));
        QCOMPARE(s.textMin(0)->text(), QStringLiteral("77"));
        QCOMPARE(edit(s.form.get(), "TextExoPort")->text(), QStringLiteral("2"));
        // Back on the first suit the edited port is lost from view; OK takes the number shown.
        DialogDriver::pick(s.form.get(), QStringLiteral("ComboExo"), QStringLiteral("1"));
        QCOMPARE(edit(s.form.get(), "TextExoPort")->text(), QStringLiteral("1"));
        QCOMPARE(s.textMin(0)->text(), QStringLiteral("11"));
        s.click("CommandOK");
        QCOMPARE(gMainConfig.m_iExo1Port, qint16(1));
        QCOMPARE(gMainConfig.m_iExo2Port, qint16(2));
    }

    void aChannelTypedForTheSecondSuitGoesToItsRecordInTheModel()
    {
        s.open();
        DialogDriver::pick(s.form.get(), QStringLiteral("ComboExo"), QStringLiteral("2"));
        DialogDriver::type(s.form.get(), QStringLiteral("ComboChannel(0)"), QStringLiteral("5"));
        QCOMPARE(gExoData(1).m_iChannel(0), qint16(5));
        QCOMPARE(gExoData(0).m_iChannel(0), qint16(1));
        QCOMPARE(gExoDataEdit(1).m_iChannel(0), qint16(1));
    }

    void choosingTheSuitShownThrowsAwayWhatWasNotStored()
    {
        s.open();
        DialogDriver::type(s.form.get(), QStringLiteral("TextMax(2)"), QStringLiteral("99"));
        DialogDriver::pick(s.form.get(), QStringLiteral("ComboExo"), QStringLiteral("1"));
        QCOMPARE(s.textMax(2)->text(), QStringLiteral("255"));
        QCOMPARE(gExoDataEdit(0).m_iMax(2), qint16(255));
    }

    void aTypedPortCountsOnlyAfterOk()
    {
        gMainConfig.m_iNExos = 1;
        Suit suit(1, scripted(1));
        s.open();
        DialogDriver::type(s.form.get(), QStringLiteral("TextExoPort"), QStringLiteral("9"));
        s.run([&] { s.stopWhen([&] { return suit.requests() >= 2; }); });
        QVERIFY(suit.requests() >= 2);
        s.click("CommandOK");
        QCOMPARE(gMainConfig.m_iExo1Port, qint16(9));
    }
};

QTEST_MAIN(TestExoCalibrationForm)
#include "test_exocalibrationform.moc"
