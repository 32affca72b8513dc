// The MIDI ports dialog as an operator uses it from the device panel.
#include "DeviceDialogSession.h"
#include "devices/FormMIDIPorts.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "rules/CEvent.h"
#include "rules/ModuleEvents.h"
#include "rules/ModuleGlobalEvents.h"

namespace {

// A rule on MIDI input `source` with one action on MIDI output `target`.
std::shared_ptr<CEvent> midiRule(qint16 source, qint16 target, const QString& remark)
{
    auto r = std::make_shared<CEvent>();
    r->m_iSourceType = 6;
    r->m_iSource = source;
    r->m_iItem = 0;
    r->m_strVal1 = QStringLiteral("60");
    r->m_strRemarks = remark;
    r->m_bEnabled = true;
    r->m_MsgOut = std::make_shared<Collection<CAction>>();
    auto a = std::make_shared<CAction>();
    a->m_iTargetType = 6;
    a->m_iTarget = target;
    a->m_iCommand = 1;
    r->m_MsgOut->Add(a);
    return r;
}

// Every rule of every subscene and every global rule as the rule files hold them.
QStringList allRuleTexts()
{
    QStringList texts;
    for (int s = 1; s <= gScenes.Count(); ++s)
        for (int p = 1; p <= gScenes(s)->PartList.Count(); ++p)
            for (int r = 1; r <= gScenes(s)->PartList(p)->AudioEvents.Count(); ++r)
                texts << BuildEventText(s, p, r, true);
    for (int r = 1; r <= gGlobalEvents.Count(); ++r)
        texts << BuildGlobalEventText(r);
    return texts;
}

} // namespace

class TestMIDIPorts : public QObject {
    Q_OBJECT
private:
    DeviceDialogSession s;

    static void fillRow(QWidget* d, int i, const QString& label, const QString& port, bool input)
    {
        typeIn(d, row("TextMIDIPortLabel", i), label);
        typeIn(d, row("TextPortNumber", i), port);
        clickOn(d, row(input ? "optIn" : "optOut", i));
    }
    // Opens the dialog over `count` devices and runs `fill` on it, then OK.
    void acceptRows(int count, const std::function<void(QWidget*)>& fill)
    {
        s.pickCount("ComboNMIDI", count);
        QString error;
        QVERIFY2(s.click("CommandPorts", {[&](QWidget* d) {
                     fill(d);
                     clickOn(d, QStringLiteral("CommandOK"));
                 }},
                 &error),
                 qPrintable(error));
    }

private slots:
    void initTestCase() { s.start(); }
    void init() { s.fresh(); }
    void cleanupTestCase() { s.stop(); }

    void withNoDevicesTheButtonOnlySaysSo()
    {
        SeenBox box;
        QString error;
        QVERIFY2(s.click("CommandPorts", {noteBox(&box)}, &error), qPrintable(error));
        QCOMPARE(box.text, QStringLiteral("No MIDI devices to configure!"));
        QCOMPARE(box.title, QStringLiteral("QEL Setup"));
        QCOMPARE(box.icon, QMessageBox::Warning);
    }

    void theRowsInUseShowAndAnAbsentPortIsAnEmptyBox()
    {
        gMainConfig.m_iMIDIPort(1) = 4;
        gMainConfig.m_iPortInOut(1) = 1;
        gMainConfig.m_strMIDIPortLabel(1) = QStringLiteral("Keys");
        s.pickCount("ComboNMIDI", 2);
        QList<bool> visible;
        QStringList texts;
        bool out0 = false, in1 = false;
        QString caption, frame;
        QStringList heads;
        bool sameAsPort = true;   // each row's controls on show together
        QString error;
        QVERIFY2(s.click("CommandPorts", {[&](QWidget* d) {
                     caption = d->windowTitle();
                     frame = control<QGroupBox>(d, QStringLiteral("FramePorts"))->title();
                     for (QLabel* label : d->findChildren<QLabel*>())
                         heads << label->text();
                     for (int i = 0; i < 8; ++i) {
                         visible << shown(d, row("TextPortNumber", i));
                         for (const char* name : {"Label4", "TextMIDIPortLabel", "optIn", "optOut"})
                             sameAsPort = sameAsPort && shown(d, row(name, i)) == visible.last();
                     }
                     texts << textOf(d, row("TextPortNumber", 0)) << textOf(d, row("TextPortNumber", 1))
                           << textOf(d, row("TextMIDIPortLabel", 1))
                           << control<QLabel>(d, row("Label4", 1))->text();
                     out0 = control<QRadioButton>(d, row("optOut", 0))->isChecked();
                     in1 = control<QRadioButton>(d, row("optIn", 1))->isChecked();
                     clickOn(d, QStringLiteral("CommandCancel"));
                 }},
                 &error),
                 qPrintable(error));
        QCOMPARE(caption, QStringLiteral("Performance Ports Configuration"));
        QCOMPARE(frame, QStringLiteral("Generic MIDI Ports"));
        for (const char* head : {"Label:", "Port:", "IN", "OUT", "Generic Port 1:", "Generic Port 8:"})
            QVERIFY2(heads.contains(QString::fromLatin1(head)), head);
        QCOMPARE(visible, (QList<bool>{true, true, false, false, false, false, false, false}));
        QVERIFY(sameAsPort);
        QCOMPARE(texts, (QStringList{"", "4", "Keys", "Generic Port 2:"}));
        QVERIFY(out0);
        QVERIFY(in1);
    }

    void okStoresTheRowsRebuildsThePackedListsAndSaveAsWritesThem()
    {
        gDirty = false;
        acceptRows(3, [](QWidget* d) {
            fillRow(d, 0, QStringLiteral("Keys"), QStringLiteral("0"), true);
            fillRow(d, 1, QStringLiteral("Synth"), QStringLiteral("2"), false);
            fillRow(d, 2, QStringLiteral("Pads"), QStringLiteral("5"), true);
        });
        const CMainConfig& c = gMainConfig;
        QVERIFY(gDirty);
        QCOMPARE(c.m_iMIDIPort(0), qint16(0));
        QCOMPARE(c.m_iPortInOut(0), qint16(1));
        QCOMPARE(c.m_iPortInOut(1), qint16(2));
        QCOMPARE(c.m_iInMIDIPort(0), qint16(0));
        QCOMPARE(c.m_strInMIDIPortLabel(0), QStringLiteral("Keys"));
        QCOMPARE(c.m_iInMIDIPort(1), qint16(5));
        QCOMPARE(c.m_strInMIDIPortLabel(1), QStringLiteral("Pads"));
        QCOMPARE(c.m_iInMIDIPort(2), qint16(-1));
        QCOMPARE(c.m_iOutMIDIPort(0), qint16(2));
        QCOMPARE(c.m_strOutMIDIPortLabel(0), QStringLiteral("Synth"));
        QCOMPARE(c.m_iOutMIDIPort(1), qint16(-1));
        QCOMPARE(c.m_strOutMIDIPortLabel(1), QString());

        // The third row loses its port: an absent port in the file.
        acceptRows(3, [](QWidget* d) {
            typeIn(d, row("TextMIDIPortLabel", 2), QString());
            typeIn(d, row("TextPortNumber", 2), QString());
        });
        QCOMPARE(c.m_iMIDIPort(2), qint16(-1));
        QCOMPARE(c.m_iPortInOut(2), qint16(0));
        QCOMPARE(c.m_iInMIDIPort(1), qint16(-1));

        const QByteArray file = s.saveAsAndRead(QStringLiteral("midi.qel"));
        QVERIFY2(file.contains(fileLines({"; Number of MIDI devices:", " 3 ", "", "; Number of Flash apps:"})), file.constData());
        const QByteArray ports = fileLines({"; Audio MIDI Ports:", " 0 ", " 1 ", "Keys", " 2 ", " 2 ", "Synth",
                                            "-1", "0", "---", "", "; Flash Port:"});
        QVERIFY2(file.contains(ports), file.constData());

        s.reopen(QStringLiteral("midi.qel"));
        QCOMPARE(gMainConfig.m_iNMIDIs, qint16(3));
        QCOMPARE(gMainConfig.m_strMIDIPortLabel(1), QStringLiteral("Synth"));
        QCOMPARE(gMainConfig.m_iMIDIPort(1), qint16(2));
        QCOMPARE(gMainConfig.m_iPortInOut(0), qint16(1));
    }

    void aRuleOnInputOneKeepsItsNumberWhenTheRowBeforeItTurnsToAnOutput()
    {
        acceptRows(3, [](QWidget* d) {
            fillRow(d, 0, QStringLiteral("A"), QStringLiteral("10"), true);
            fillRow(d, 1, QStringLiteral("B"), QStringLiteral("11"), true);
            fillRow(d, 2, QStringLiteral("C"), QStringLiteral("12"), true);
        });
        auto part = gScenes(1)->PartList(1);
        part->AddAudioEvent(midiRule(1, 0, QStringLiteral("on B")), 1);
        AddGlobalEvent(midiRule(1, 0, QStringLiteral("global on B")), 1);
        QCOMPARE(gMainConfig.m_iInMIDIPort(1), qint16(11));

        acceptRows(3, [](QWidget* d) { clickOn(d, row("optOut", 0)); });
        // The rule still says input 1, which is now the next input, C.
        QCOMPARE(part->AudioEvents(1)->m_iSource, qint16(1));
        QCOMPARE(gGlobalEvents(1)->m_iSource, qint16(1));
        QCOMPARE(gMainConfig.m_iInMIDIPort(1), qint16(12));
        QCOMPARE(gMainConfig.m_strInMIDIPortLabel(1), QStringLiteral("C"));

        // With B turned to an output as well, input 1 is none.
        acceptRows(3, [](QWidget* d) { clickOn(d, row("optOut", 1)); });
        QCOMPARE(part->AudioEvents(1)->m_iSource, qint16(1));
        QCOMPARE(gMainConfig.m_iInMIDIPort(1), qint16(-1));
        QCOMPARE(part->AudioEvents(1)->m_MsgOut->Item(1)->m_iTarget, qint16(0));
    }

    void thePassOverTheRulesChangesNoField()
    {
        acceptRows(4, [](QWidget* d) {
            fillRow(d, 0, QStringLiteral("A"), QStringLiteral("1"), true);
            fillRow(d, 1, QStringLiteral("B"), QStringLiteral("2"), false);
            fillRow(d, 2, QStringLiteral("C"), QStringLiteral("3"), true);
            fillRow(d, 3, QStringLiteral("D"), QStringLiteral("4"), false);
        });
        auto scene2 = std::make_shared<CScene>();
        scene2->m_strName = QStringLiteral("SCENE 2");
        scene2->InitPartList();
        gScenes.Add(scene2);
        gScenes(1)->PartList(1)->AddAudioEvent(midiRule(0, 1, QStringLiteral("a")), 1);
        gScenes(1)->PartList(1)->AddAudioEvent(midiRule(1, 0, QStringLiteral("b")), 2);
        auto other = midiRule(0, 0, QStringLiteral("exo"));
        other->m_iSourceType = 1;
        scene2->PartList(1)->AddAudioEvent(other, 1);
        scene2->PartList(1)->AddAudioEvent(midiRule(1, 1, QStringLiteral("c")), 2);
        AddGlobalEvent(midiRule(0, 1, QStringLiteral("g")), 1);
        const QStringList before = allRuleTexts();

        // Every direction turned round, a port dropped, another added.
        acceptRows(5, [](QWidget* d) {
            clickOn(d, row("optOut", 0));
            clickOn(d, row("optIn", 1));
            typeIn(d, row("TextMIDIPortLabel", 2), QString());
            typeIn(d, row("TextPortNumber", 2), QString());
            clickOn(d, row("optIn", 3));
            fillRow(d, 4, QStringLiteral("E"), QStringLiteral("9"), true);
        });
        QCOMPARE(gMainConfig.m_iInMIDIPort(0), qint16(2));
        QCOMPARE(allRuleTexts(), before);
    }

    void aValidationMessageLeavesTheDirtyFlagSet()
    {
        s.pickCount("ComboNMIDI", 2);
        gDirty = false;
        SeenBox box;
        QString error;
        QVERIFY2(s.click("CommandPorts", {[&](QWidget* d) {
                                             typeIn(d, row("TextMIDIPortLabel", 1), QStringLiteral("Keys"));
                                             clickOn(d, QStringLiteral("CommandOK"));
                                             clickOn(d, QStringLiteral("CommandCancel"));
                                         },
                                         noteBox(&box)},
                         &error),
                 qPrintable(error));
        QCOMPARE(box.text, QStringLiteral("You have to enter a valid port number for MIDI port 2"));
        QCOMPARE(box.title, QStringLiteral("QEL Setup"));
        QCOMPARE(box.icon, QMessageBox::Warning);
        QVERIFY(gDirty);
        QCOMPARE(gMainConfig.m_strMIDIPortLabel(1), QString());
        QCOMPARE(gMainConfig.m_iMIDIPort(1), qint16(-1));
    }

    void aPortWithoutALabelGetsTheLabelMessageAndANegativeOneThePortMessage()
    {
        s.pickCount("ComboNMIDI", 2);
        SeenBox first, second, third;
        QString error;
        QVERIFY2(s.click("CommandPorts", {[&](QWidget* d) {
                                             typeIn(d, row("TextPortNumber", 0), QStringLiteral("3"));
                                             clickOn(d, QStringLiteral("CommandOK"));
                                             typeIn(d, row("TextPortNumber", 0), QStringLiteral("-3"));
                                             clickOn(d, QStringLiteral("CommandOK"));
                                             typeIn(d, row("TextMIDIPortLabel", 0), QStringLiteral("Keys"));
                                             clickOn(d, QStringLiteral("CommandOK"));
                                             clickOn(d, QStringLiteral("CommandCancel"));
                                         },
                                         noteBox(&first), noteBox(&second), noteBox(&third)},
                         &error),
                 qPrintable(error));
        QCOMPARE(first.text, QStringLiteral("You have to enter a label for MIDI port 1"));
        QCOMPARE(first.title, QStringLiteral("QEL Setup"));
        QCOMPARE(first.icon, QMessageBox::Warning);
        QCOMPARE(second.text, QStringLiteral("You have to enter a valid port number for MIDI port 1"));
        QCOMPARE(third.text, QStringLiteral("You have to enter a valid port number for MIDI port 1"));
    }

    void loadClearsTheUpdateFlagAndOkSetsIt()
    {
        {
            FormMIDIPorts dialog(s.form.get());
            dialog.iNumMIDIs = 1;
            const UpdateFlag ok = updateFlagAround(dialog, [](QWidget* d) { clickOn(d, QStringLiteral("CommandOK")); });
            QVERIFY2(ok.error.isEmpty(), qPrintable(ok.error));
            QVERIFY(!ok.atLoad);
            QVERIFY(ok.atClose);
        }
        FormMIDIPorts dialog(s.form.get());
        dialog.iNumMIDIs = 1;
        const UpdateFlag cancel = updateFlagAround(dialog, [](QWidget* d) { clickOn(d, QStringLiteral("CommandCancel")); });
        QVERIFY2(cancel.error.isEmpty(), qPrintable(cancel.error));
        QVERIFY(!cancel.atLoad);
        QVERIFY(!cancel.atClose);
    }

    void cancelChangesNothing()
    {
        s.pickCount("ComboNMIDI", 2);
        gDirty = false;
        QString error;
        QVERIFY2(s.click("CommandPorts", {[&](QWidget* d) {
                     fillRow(d, 0, QStringLiteral("Keys"), QStringLiteral("1"), true);
                     clickOn(d, QStringLiteral("CommandCancel"));
                 }},
                 &error),
                 qPrintable(error));
        QCOMPARE(gMainConfig.m_iMIDIPort(0), qint16(-1));
        QCOMPARE(gMainConfig.m_strMIDIPortLabel(0), QString());
        QCOMPARE(gMainConfig.m_iInMIDIPort(0), qint16(-1));
        QVERIFY(!gDirty);
    }
};

QTEST_MAIN(TestMIDIPorts)
#include "test_midi.moc"
