// The live calibration against a simulated suit on a pseudo-terminal, driven
// through the dialog's buttons while its sampling loop runs.
#include "ExoCalibrationSession.h"
#include <QApplication>
#include <QMessageBox>

namespace {

// Channel c carries a value of its own in each of two frames.
const SuitFrame kLow = frameOf([](int c) { return 100 - c; });
const SuitFrame kHigh = frameOf([](int c) { return 150 + c; });

SuitOptions scripted(std::vector<SuitFrame> frames, int lateMs = 0)
{
    SuitOptions o;
    o.script = std::move(frames);
    o.lateMs = lateMs;
    return o;
}

SuitOptions silent()
{
    SuitOptions o;
    o.dropEvery = 1;
    return o;
}

bool messageBoxOpen()
{
    for (QWidget* w : QApplication::topLevelWidgets())
        if (qobject_cast<QMessageBox*>(w) && w->isVisible())
            return true;
    return false;
}

}  // namespace

class TestExoCalibration : public QObject {
    Q_OBJECT
private:
    CalibrationSession s;

private slots:
    void init() { CalibrationSession::resetModel(1); }
    void cleanup() { s.form.reset(); }

    void startingShowsNothingUntilTheFirstFrameThenItAsBothEnds()
    {
        for (int row = 0; row < kExoRows; ++row) {
            gExoData(0).m_iMin(row) = static_cast<qint16>(10 + row);
            gExoData(0).m_iMax(row) = static_cast<qint16>(200 + row);
        }
        // One frame only, sent by hand once a request has gone unanswered.
        Suit suit(1, silent());
        s.open();
        QStringList beforeFrame, firstFrame;
        const auto rows = [this] { return s.ranges(); };
        s.run([&] {
            when(s.form.get(), [&] { return suit.requests() >= 2; }, [&] {
                beforeFrame = rows();
                suit.sim().send(bytesOf({kLow}));
            });
            when(s.form.get(), [&] { return s.textMin(0)->text() != QLatin1String("10"); }, [&] {
                firstFrame = rows();
                s.click("CommandAuto");
            });
        });
        QStringList loaded, sampled;
        for (int row = 0; row < kExoRows; ++row) {
            loaded << QStringLiteral("%1-%2").arg(10 + row).arg(200 + row);
            const int v = kLow[row];   // row r reads channel r + 1
            sampled << QStringLiteral("%1-%1").arg(v);
        }
        QCOMPARE(beforeFrame, loaded);
        QCOMPARE(firstFrame, sampled);
    }

    void aSuitThatNeverAnswersCountsErrorsAndStopRestoresTheButtons()
    {
        for (int row = 0; row < kExoRows; ++row) {
            gExoData(0).m_iMin(row) = static_cast<qint16>(row);
            gExoData(0).m_iMax(row) = static_cast<qint16>(100 + row);
        }
        Suit suit(1, silent());
        s.open();
        bool disabledWhileRunning = false;
        QElapsedTimer clock;
        qint64 ranMs = 0;
        QString errorsAtStop;
        s.run([&] {
            clock.start();
            after(s.form.get(), 1000, [&] {
                disabledWhileRunning = s.sampling();
                errorsAtStop = s.errors();
                ranMs = clock.elapsed();
                s.click("CommandAuto");
            });
        });
        QVERIFY(disabledWhileRunning);
        // One error per unanswered request, and never more than one per 50 ms
        // (ticks are whole milliseconds); a loaded machine may count fewer.
        const int errors = errorsAtStop.toInt();
        QVERIFY2(errors <= ranMs / 49 + 1 && errors >= ranMs / 150,
                 qPrintable(QStringLiteral("%1 errors in %2 ms").arg(errors).arg(ranMs)));
        // The request cut short by the stop is no error.
        const int requests = static_cast<int>(settledRequests(suit));
        QVERIFY2(errors == requests - 1 || errors == requests,
                 qPrintable(QStringLiteral("%1 errors, %2 requests").arg(errors).arg(requests)));
        QCOMPARE(s.button("CommandAuto")->text(), kStartCaption);
        QVERIFY(s.button("CommandOK")->isEnabled());
        QVERIFY(s.button("CommandCancel")->isEnabled());
        QCOMPARE(s.textMin(7)->text(), QStringLiteral("7"));
        QCOMPARE(s.textMax(7)->text(), QStringLiteral("107"));
        // The count stays on show until the next run raises it.
        QCOMPARE(s.errors(), errorsAtStop);

        s.click("CommandOK");
        QVERIFY(gMainConfig.m_bUpdate);
        for (int row = 0; row < kExoRows; ++row) {
            QCOMPARE(gExoDataEdit(0).m_iMin(row), qint16(row));
            QCOMPARE(gExoDataEdit(0).m_iMax(row), qint16(100 + row));
        }
    }

    void rowsOnTheSameChannelGetTheSameValues()
    {
        Suit suit(1, scripted({kLow, kHigh}));
        s.open();
        DialogDriver::type(s.form.get(), QStringLiteral("ComboChannel(0)"), QStringLiteral("3"));
        QCOMPARE(gExoData(0).m_iChannel(0), qint16(3));
        s.run([&] {
            s.stopWhen([&] {
                return s.textMin(0)->text() == QString::number(kLow[2])
                    && s.textMax(0)->text() == QString::number(kHigh[2]);
            });
        });
        QCOMPARE(s.textMin(0)->text(), QString::number(kLow[2]));
        QCOMPARE(s.textMax(0)->text(), QString::number(kHigh[2]));
        QCOMPARE(s.textMin(2)->text(), s.textMin(0)->text());
        QCOMPARE(s.textMax(2)->text(), s.textMax(0)->text());
        QCOMPARE(s.textMin(1)->text(), QString::number(kLow[1]));
    }

    void aPickedChannelDoesNotReachTheRunningCalibration()
    {
        Suit suit(1, scripted({kLow}));
        s.open();
        // A pick changes the dialog only; the run reads the channels of the model.
        DialogDriver::pick(s.form.get(), QStringLiteral("ComboChannel(0)"), QStringLiteral("3"));
        QCOMPARE(gExoData(0).m_iChannel(0), qint16(1));
        s.run([&] { s.stopWhen([&] { return s.textMax(28)->text() == QString::number(kLow[28]); }); });
        QCOMPARE(s.textMin(0)->text(), QString::number(kLow[0]));
        QCOMPARE(s.textMax(0)->text(), QString::number(kLow[0]));
    }

    void eachRunStartsItsRangesAfresh()
    {
        const SuitFrame middle = frameOf([](int c) { return 120 + c; });
        s.open();
        {
            Suit wide(1, scripted({kLow, kHigh}));
            s.run([&] { s.stopWhen([&] { return s.textMax(28)->text() == QString::number(kHigh[28]); }); });
            QCOMPARE(s.textMin(28)->text(), QString::number(kLow[28]));
        }
        Suit narrow(1, scripted({middle}));
        s.run([&] { s.stopWhen([&] { return narrow.sim().answerCount() >= 3; }); });
        for (int row = 0; row < kExoRows; ++row) {
            QCOMPARE(s.textMin(row)->text(), QString::number(middle[row]));
            QCOMPARE(s.textMax(row)->text(), QString::number(middle[row]));
        }
    }

    void theRequestCarriesTheStoredIdentity()
    {
        gExoData(0).m_iID = 2;
        SuitOptions o = scripted({kLow});
        o.anyId = true;
        Suit suit(1, o);
        s.open();
        QCOMPARE(s.control<QComboBox>(QStringLiteral("ComboID"))->currentText(), QStringLiteral("2"));
        // A new identity picked but not stored does not reach the suit.
        DialogDriver::pick(s.form.get(), QStringLiteral("ComboID"), QStringLiteral("1"));
        s.run([&] { s.stopWhen([&] { return suit.requests() >= 3; }); });
        const auto requests = suit.sim().requests();
        QVERIFY(requests.size() >= 3);
        for (const auto& r : requests)
            QCOMPARE((std::vector<int>{r[0], r[1], r[2], r[3]}), (std::vector<int>{0x40, 2, 0x20, 0x00}));
    }

    void aSuitOfAnotherIdentityLeavesTheRequestsUnanswered()
    {
        SuitOptions o = scripted({kLow});
        o.id = 2;
        Suit suit(1, o);
        s.open();
        s.run([&] { s.stopWhen([&] { return suit.requests() >= 4; }); });
        QCOMPARE(suit.sim().answerCount(), std::size_t(0));
        QVERIFY(s.errors().toInt() >= 3);
        QCOMPARE(s.textMin(0)->text(), QStringLiteral("0"));
    }

    void aLateAnswerIsTakenByTheNextRequest()
    {
        Suit suit(1, silent());
        s.open();
        QString errorsWhenTaken;
        s.run([&] {
            // The answer to the first request comes 80 ms after it, past its 50 ms.
            when(s.form.get(), [&] { return suit.requests() >= 1; }, [&] {
                after(s.form.get(), 80, [&] { suit.sim().send(bytesOf({kLow})); });
            });
            when(s.form.get(), [&] { return s.textMin(0)->text() != QLatin1String("0"); }, [&] {
                errorsWhenTaken = s.errors();
                after(s.form.get(), 120, [&] { s.click("CommandAuto"); });
            });
        });
        QCOMPARE(s.textMin(0)->text(), QString::number(kLow[0]));
        QCOMPARE(s.textMax(0)->text(), QString::number(kLow[0]));
        QVERIFY2(errorsWhenTaken.toInt() >= 1, qPrintable(errorsWhenTaken));
        // Every request but the one that took the frame went unanswered, and the
        // last was cut short by the stop (the suit may not have read that one).
        const int errors = s.errors().toInt();
        const int requests = static_cast<int>(settledRequests(suit));
        QVERIFY2(errors == requests - 1 || errors == requests - 2,
                 qPrintable(QStringLiteral("%1 errors, %2 requests").arg(errors).arg(requests)));
    }

    void sixtyFourBytesAtOnceServeTwoRequests()
    {
        Suit suit(1, silent());
        s.open();
        s.run([&] {
            when(s.form.get(), [&] { return suit.requests() >= 1; },
                 [&] { suit.sim().send(bytesOf({kLow, kHigh})); });
            when(s.form.get(), [&] { return s.textMax(0)->text() == QString::number(kHigh[0]); },
                 [&] { after(s.form.get(), 120, [&] { s.click("CommandAuto"); }); });
        });
        for (int row = 0; row < kExoRows; ++row) {
            QCOMPARE(s.textMin(row)->text(), QString::number(kLow[row]));
            QCOMPARE(s.textMax(row)->text(), QString::number(kHigh[row]));
        }
        const int errors = s.errors().toInt();
        const int requests = static_cast<int>(settledRequests(suit));
        QVERIFY2(errors == requests - 2 || errors == requests - 3,
                 qPrintable(QStringLiteral("%1 errors, %2 requests").arg(errors).arg(requests)));
    }

    void aChannelOutsideOneToThirtyTwoShows255And0()
    {
        gExoData(0).m_iChannel(6) = 33;
        Suit suit(1, scripted({kLow, kHigh}));
        s.open();
        DialogDriver::type(s.form.get(), QStringLiteral("ComboChannel(5)"), QStringLiteral("x"));
        QCOMPARE(gExoData(0).m_iChannel(5), qint16(0));
        s.run([&] { s.stopWhen([&] { return s.textMax(4)->text() == QString::number(kHigh[4]); }); });
        for (int row : {5, 6}) {
            QCOMPARE(s.textMin(row)->text(), QStringLiteral("255"));
            QCOMPARE(s.textMax(row)->text(), QStringLiteral("0"));
        }
        QCOMPARE(s.textMin(4)->text(), QString::number(kLow[4]));
    }

    void aTypedChannelCountsByTheEntryEqualToItsText()
    {
        s.open();
        DialogDriver::type(s.form.get(), QStringLiteral("ComboChannel(9)"), QStringLiteral("1"));
        QCOMPARE(gExoData(0).m_iChannel(9), qint16(1));
        DialogDriver::type(s.form.get(), QStringLiteral("ComboChannel(9)"), QStringLiteral("32"));
        QCOMPARE(gExoData(0).m_iChannel(9), qint16(32));
        DialogDriver::type(s.form.get(), QStringLiteral("ComboChannel(10)"), QStringLiteral("33"));
        QCOMPARE(gExoData(0).m_iChannel(10), qint16(0));
        // A pick from the list leaves the model alone.
        DialogDriver::pick(s.form.get(), QStringLiteral("ComboChannel(11)"), QStringLiteral("20"));
        QCOMPARE(gExoData(0).m_iChannel(11), qint16(12));
        s.click("CommandOK");
        QCOMPARE(gExoDataEdit(0).m_iChannel(9), qint16(32));
        QCOMPARE(gExoDataEdit(0).m_iChannel(10), qint16(0));
        QCOMPARE(gExoDataEdit(0).m_iChannel(11), qint16(20));
    }

    void okWhileSamplingStopsWaitsAndStores()
    {
        Suit suit(1, scripted({kLow, kHigh}));
        s.open();
        QElapsedTimer clock;
        qint64 okTook = -1;
        std::size_t requestsAtOk = 0;
        s.run([&] {
            when(s.form.get(), [&] {
                return s.textMin(0)->text() == QString::number(kLow[0])
                    && s.textMax(0)->text() == QString::number(kHigh[0]);
            }, [&] {
                clock.start();
                // OK is disabled while sampling; its handler is what runs should it come.
                s.form->CommandOK_Click();
                okTook = clock.elapsed();
                requestsAtOk = suit.requests();
            });
        });
        QVERIFY(okTook >= 100);
        QVERIFY(!s.form->isVisible());
        QCOMPARE(s.form->result(), int(QDialog::Accepted));
        QVERIFY(gMainConfig.m_bUpdate);
        QVERIFY(gDirty);
        // The request in flight at OK may reach the suit after it; none follows.
        const std::size_t settled = settledRequests(suit);
        QVERIFY2(settled <= requestsAtOk + 1, qPrintable(QStringLiteral("%1 after %2").arg(settled).arg(requestsAtOk)));
        QTest::qWait(200);
        QCOMPARE(suit.requests(), settled);
        for (int row = 0; row < kExoRows; ++row) {
            QCOMPARE(gExoDataEdit(0).m_iMin(row), qint16(kLow[row]));
            QCOMPARE(gExoDataEdit(0).m_iMax(row), qint16(kHigh[row]));
        }
    }

    void cancelWhileSamplingStopsWaitsAndKeepsNothing()
    {
        gDirty = true;
        Suit suit(1, scripted({kLow, kHigh}));
        s.open();
        QElapsedTimer clock;
        qint64 cancelTook = -1;
        s.run([&] {
            when(s.form.get(), [&] { return s.textMax(0)->text() == QString::number(kHigh[0]); }, [&] {
                clock.start();
                // Cancel is disabled while sampling; its handler is what runs should it come.
                s.form->CommandCancel_Click();
                cancelTook = clock.elapsed();
            });
        });
        QVERIFY(cancelTook >= 100);
        QVERIFY(!s.form->isVisible());
        QCOMPARE(s.form->result(), int(QDialog::Rejected));
        QVERIFY(!s.form->MSComm1.portOpen());
        QVERIFY(!gMainConfig.m_bUpdate);
        QVERIFY(!gDirty);
        QCOMPARE(gExoDataEdit(0).m_iMin(0), qint16(0));
        QCOMPARE(gExoDataEdit(0).m_iMax(0), qint16(255));
    }

    void choosingTheSuitShownWhileRunningAlsoEndsTheRunAndKeepsTheButtons()
    {
        CalibrationSession::resetModel(2);
        Suit suit(1, scripted({kLow}));
        s.open();
        s.run([&] {
            when(s.form.get(), [&] { return suit.sim().answerCount() >= 2; },
                 [&] { DialogDriver::pick(s.form.get(), QStringLiteral("ComboExo"), QStringLiteral("1")); });
        });
        QVERIFY(!s.form->MSComm1.portOpen());
        QCOMPARE(s.button("CommandAuto")->text(), kStopCaption);
        QVERIFY(!s.button("CommandOK")->isEnabled());
        QVERIFY(!s.button("CommandCancel")->isEnabled());
        // The suit shown was reloaded from its working copy: the sampled ranges are gone.
        QCOMPARE(s.textMin(0)->text(), QStringLiteral("0"));
        QCOMPARE(s.textMax(0)->text(), QStringLiteral("255"));
    }

    void aPortThatDoesNotExistFailsSilently()
    {
        qputenv("QEL_COM1", "/nonexistent/qel-no-such-port");
        s.open();
        bool boxSeen = false;
        QString errorsWhileRunning;
        s.run([&] {
            when(s.form.get(), [&] { boxSeen = boxSeen || messageBoxOpen(); return false; }, [] {}, 400);
            when(s.form.get(), [&] { return s.errors().toInt() >= 3; }, [&] {
                errorsWhileRunning = s.errors();
                s.click("CommandAuto");
            });
        });
        qunsetenv("QEL_COM1");
        QVERIFY(!boxSeen);
        QVERIFY2(errorsWhileRunning.toInt() >= 3, qPrintable(errorsWhileRunning));
        QVERIFY(s.button("CommandOK")->isEnabled());
        // A second run starts and stops as well.
        s.run([&] { after(s.form.get(), 120, [&] { s.click("CommandAuto"); }); });
        QCOMPARE(s.button("CommandAuto")->text(), kStartCaption);
        s.click("CommandOK");
        QVERIFY(!s.form->isVisible());
        QVERIFY(!boxSeen && !messageBoxOpen());
    }

    void aBusyPortFailsSilently()
    {
        Suit suit(1, scripted({kLow}));
        CommPort other;
        other.setCommPort(1);
        other.setPortOpen(true);
        s.open();
        s.run([&] { s.stopWhen([&] { return s.errors().toInt() >= 3; }); });
        QVERIFY(s.errors().toInt() >= 3);
        QCOMPARE(settledRequests(suit), std::size_t(0));
        QCOMPARE(s.textMin(0)->text(), QStringLiteral("0"));
        QVERIFY(!messageBoxOpen());
    }

    void theStopIsHonouredWithinOneWaitAndNoRowChangesAfterIt()
    {
        // The values sweep the whole range, so the rows widen on most frames.
        SuitOptions moving;
        moving.periodMs = 1000;
        Suit suit(1, moving);
        s.open();
        QElapsedTimer clock;
        std::size_t requestsAtStop = 0;
        QStringList rowsAtStop;
        s.run([&] {
            when(s.form.get(), [&] { return suit.sim().answerCount() >= 5; }, [&] {
                s.click("CommandAuto");
                requestsAtStop = suit.requests();
                rowsAtStop = s.ranges();
                clock.start();
            });
        });
        // The loop ends at once; a loaded machine gets slack, and the requests
        // below show that no further round ran.
        QVERIFY2(clock.elapsed() <= 300, qPrintable(QString::number(clock.elapsed())));
        QCOMPARE(s.ranges(), rowsAtStop);
        QVERIFY(!s.form->MSComm1.portOpen());
        // The request in flight at the stop may reach the suit after it; none follows.
        const std::size_t settled = settledRequests(suit);
        QVERIFY2(settled <= requestsAtStop + 1, qPrintable(QStringLiteral("%1 after %2").arg(settled).arg(requestsAtStop)));
        QCOMPARE(s.ranges(), rowsAtStop);
    }
};

QTEST_MAIN(TestExoCalibration)
#include "test_exocalibration.moc"
