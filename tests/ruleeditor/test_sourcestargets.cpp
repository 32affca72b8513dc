// What the editor offers for each device configuration, and the mapping
// between combo texts and stored numbers, without opening the dialog.
#include "EditorTestHelpers.h"
#include "rules/ModuleEvents.h"

using namespace edtest;

class TestSourcesTargets : public QObject {
    Q_OBJECT
private slots:
    void init() { ResetAll(); }

    void noDeviceOffersAutomaticAndQelOnly()
    {
        QComboBox sources, targets;
        FillSourceTypes(&sources);
        FillTargetTypes(&targets);
        QCOMPARE(items(&sources), QStringList{"Automatic"});
        QCOMPARE(items(&targets), QStringList{"QEL"});
    }

    void everyKindInItsPlace()
    {
        ConfigureEveryKind();
        QComboBox sources, targets;
        FillSourceTypes(&sources);
        FillTargetTypes(&targets);
        QCOMPARE(items(&sources), (QStringList{"Automatic", "Exoskeleton", "Joystick", "Arduino", "MIDI", "OSC",
                                               "Flash Player", "Digital Input Card"}));
        QCOMPARE(items(&targets), (QStringList{"Arduino", "MIDI", "OSC", "Flash Player", "QEL", "Video Capture"}));
    }

    void sourceKindsFillAddsOnlyMissingKindsAtTheirPlaces()
    {
        ConfigureEveryKind();
        QComboBox sources;
        sources.addItems({"Automatic", "Exoskeleton", "Joystick", "Arduino", "MIDI", "OSC", "Flash Player"});
        FillSourceTypes(&sources);
        QCOMPARE(sources.count(), 8);
        QCOMPARE(sources.itemText(7), QString("Digital Input Card"));
        sources.clear();
        sources.addItems({"Automatic", "MIDI"});
        KindsWanted noJoystick;
        noJoystick.joystick = false;
        FillSourceTypes(&sources, noJoystick);
        QCOMPARE(items(&sources), (QStringList{"Automatic", "Exoskeleton", "MIDI", "Arduino", "OSC", "Flash Player",
                                               "Digital Input Card"}));
    }

    void maximumCountsWithLabels()
    {
        gMainConfig.m_iNExos = 2;
        gMainConfig.m_iNTotems = 4;
        gMainConfig.m_iNFlash = 16;
        gNDigitalIO = 4;
        for (int i = 0; i < 16; ++i) {
            AddArduino(i, QStringLiteral("A%1").arg(i), 1, {2});
            AddOsc(i, i % 2 + 1, QStringLiteral("O%1").arg(i));
        }
        for (int i = 0; i < 8; ++i)
            AddMidiPort(i, i < 4 ? 1 : 2, QStringLiteral("M%1").arg(i));
        QComboBox c;
        FillSources(&c, 1);
        QCOMPARE(items(&c), (QStringList{"Exoskeleton 1", "Exoskeleton 2"}));
        FillSources(&c, 2);
        QCOMPARE(c.count(), 4);
        QCOMPARE(c.itemText(3), QString("Joystick 4"));
        FillSources(&c, 3);
        QCOMPARE(c.count(), 16);
        QCOMPARE(c.itemText(15), QString("Flash Player 16"));
        FillSources(&c, 5);
        QCOMPARE(items(&c), (QStringList{"Digital Input Card 1", "Digital Input Card 2", "Digital Input Card 3",
                                         "Digital Input Card 4"}));
        FillSources(&c, 6);
        QCOMPARE(items(&c), (QStringList{"M0", "M1", "M2", "M3"}));
        FillTargets(&c, 6);
        QCOMPARE(items(&c), (QStringList{"M4", "M5", "M6", "M7"}));
        FillSources(&c, 7);
        QCOMPARE(c.count(), 16);
        QCOMPARE(c.itemText(15), QString("A15"));
        FillTargets(&c, 7);
        QCOMPARE(c.count(), 16);
        FillSources(&c, 8);
        QCOMPARE(c.count(), 8);
        QCOMPARE(c.itemText(0), QString("O0"));
        FillTargets(&c, 8);
        QCOMPARE(c.itemText(0), QString("O1"));
        FillTargets(&c, 3);
        QCOMPARE(c.count(), 17);
        QCOMPARE(c.itemText(16), QString("All Flash Players"));
        FillSources(&c, 0);
        QCOMPARE(items(&c), (QStringList{"Begin", "End", "QEL Variable"}));
    }

    void onlyTheConfiguredBoardsAndConnectionsCount()
    {
        AddArduino(0, "A0", 1, {});
        gArduinoData(1).m_strLabel = "Beyond";
        gArduinoData(1).m_iNumAnalogInputs = 2;
        AddOsc(0, 1, "O0");
        gMainConfig.m_iOSCPortInOut(1) = 1;
        gMainConfig.m_strOSCPortLabel(1) = "Beyond";
        QComboBox c;
        FillSources(&c, 7);
        QCOMPARE(items(&c), QStringList{"A0"});
        FillSources(&c, 8);
        QCOMPARE(items(&c), QStringList{"O0"});
    }

    void flashTargets()
    {
        QComboBox c;
        gMainConfig.m_iNFlash = 1;
        FillTargets(&c, 3);
        QCOMPARE(items(&c), QStringList{"The Flash Player"});
        QCOMPARE(TargetIndexFromText("The Flash Player", 0, 3), qint16(0));
        gMainConfig.m_iNFlash = 2;
        FillTargets(&c, 3);
        QCOMPARE(items(&c), (QStringList{"Flash Player 1", "Flash Player 2", "All Flash Players"}));
        QCOMPARE(TargetIndexFromText("Flash Player 2", 1, 3), qint16(1));
        QCOMPARE(TargetIndexFromText("All Flash Players", 2, 3), qint16(2));
    }

    void arduinoWithOnlyOutputsIsATargetOnly()
    {
        AddArduino(0, "Outs", 0, {2, 0});
        QComboBox s, t;
        FillSourceTypes(&s);
        FillTargetTypes(&t);
        QVERIFY(!items(&s).contains("Arduino"));
        QVERIFY(items(&t).contains("Arduino"));
        ResetAll();
        AddArduino(0, "Ins", 1, {});
        FillSourceTypes(&s);
        FillTargetTypes(&t);
        QVERIFY(items(&s).contains("Arduino"));
        QVERIFY(!items(&t).contains("Arduino"));
    }

    void qelTargetsOfASubsceneRule()
    {
        QComboBox c;
        FillTargets(&c, 9);
        QCOMPARE(items(&c), (QStringList{"Next Part", "Previous Part", "Go To Scene", "Increment Variable",
                                         "Decrement Variable", "Assign Value To Variable"}));
        Part().AddAudioEvent(MakeRule(0, 0, 0, -1), 0);
        gMainConfig.m_iNQDMs = 1;
        FillTargets(&c, 9);
        QCOMPARE(items(&c), (QStringList{"Next Part", "Previous Part", "Switch Player To App", "Go To Scene",
                                         "Enable Event", "Disable Event", "Increment Variable",
                                         "Decrement Variable", "Assign Value To Variable"}));
    }

    void qelTargetsOfAGlobalRule()
    {
        gGlobalRuleView = true;
        gScenes = Collection<CScene>();
        QComboBox c;
        FillTargets(&c, 9);
        QCOMPARE(items(&c), (QStringList{"Next Part", "Previous Part", "Increment Variable", "Decrement Variable",
                                         "Assign Value To Variable"}));
        AddGlobalEvent(MakeRule(0, 0, 0, -1), 0);
        FillTargets(&c, 9);
        QVERIFY(items(&c).contains("Enable Event"));
    }

    void videoCaptureTargets()
    {
        gMainConfig.m_iNVideoCaps = 3;
        QComboBox c;
        FillTargets(&c, 10);
        QCOMPARE(items(&c), (QStringList{"0", "1", "2"}));
    }

    void exoskeletonItems()
    {
        for (int r = 0; r < 29; ++r)
            gExoData(1).m_iChannel(r) = qint16(r + 3);
        QComboBox c;
        QCOMPARE(FillItems(&c, 1, 1, 0, true), 0);
        QCOMPARE(c.count(), 36);
        QCOMPARE(c.itemText(0), QString("[3] Codo Izquierdo"));
        QCOMPARE(c.itemText(16), QString::fromUtf8("[19] Pulsador Dedo Índice Izquierdo"));
        QCOMPARE(c.itemText(26), QString("[28] Pulsador Cinto 2"));
        QCOMPARE(c.itemText(27), QString("[29] Pulsador Cinto 3"));
        QCOMPARE(c.itemText(31), QString("[31] Selector"));
        QCOMPARE(c.itemText(35), QString::fromUtf8("[31] Selector Posición 4"));
        FillItems(&c, 1, 1, 2, true);
        QCOMPARE(c.count(), 10);
        QCOMPARE(c.itemText(9), QString("[12] Final de Carrera en Ingle Derecha"));
    }

    void joystickItems()
    {
        gTotemAxes(1) = 3;
        gTotemButtons(1) = 2;
        QComboBox c;
        FillItems(&c, 2, 1, 0, true);
        QCOMPARE(items(&c), (QStringList{"Eje X", "Eje Y", "Eje Z", "Sensor 1", "Sensor 2"}));
        FillItems(&c, 2, 1, 2, true);
        QCOMPARE(items(&c), (QStringList{"Eje X", "Eje Y", "Eje Z"}));
    }

    void arduinoItems()
    {
        AddArduino(0, "A", 2, {1, 2, 0, 1});
        QComboBox c;
        FillItems(&c, 7, 0, 0, true);
        QCOMPARE(items(&c), (QStringList{"Analog 0", "Analog 1", "Digital 0", "Digital 3"}));
        FillItems(&c, 7, 0, 2, true);
        QCOMPARE(items(&c), (QStringList{"Analog 0", "Analog 1"}));
        FillItems(&c, 7, 0, 0, false);
        QCOMPARE(items(&c), (QStringList{"Digital 1", "Digital 2"}));
        FillItems(&c, 7, 0, 2, false);
        QCOMPARE(items(&c), QStringList{"Digital 2"});
    }

    void digitalInputAndMidiItems()
    {
        gNDigitalIO = 1;
        gDigitalIONIn(0) = 3;
        QComboBox c;
        FillItems(&c, 5, 0, 0, true);
        QCOMPARE(items(&c), (QStringList{"0", "1", "2"}));
        FillItems(&c, 6, 0, 2, true);
        QCOMPARE(items(&c), (QStringList{"Note On", "Control Change", "Program Change", "Any"}));
        FillItems(&c, 8, 0, 0, true);
        QCOMPARE(c.count(), 0);
    }

    void kindTextsBothWays()
    {
        const QStringList texts = {"Automatic", "Exoskeleton", "Joystick", "Flash Player", "",
                                   "Digital Input Card", "MIDI", "Arduino", "OSC", "QEL", "Video Capture"};
        for (int k = 0; k < texts.size(); ++k)
            QCOMPARE(SourceTypeFromText(texts[k]), qint16(k));
        QCOMPARE(SourceTypeFromText("The Flash Player"), qint16(3));
        QCOMPARE(SourceTypeFromText("All Flash Players"), qint16(3));
        QCOMPARE(SourceTypeFromText("automatic"), qint16(4));
        QCOMPARE(SourceTypeFromText("Sync"), qint16(4));
        QComboBox c;
        c.addItems({"Automatic", "MIDI", "Flash Player"});
        QCOMPARE(IndexOfSourceType(3, &c), 2);
        QCOMPARE(IndexOfSourceType(6, &c), 1);
        QCOMPARE(IndexOfSourceType(1, &c), 0);
    }

    void interTypeAndSenseBothWays()
    {
        QCOMPARE(InterTypeFromText("Trigger"), qint16(0));
        QCOMPARE(InterTypeFromText("Gate"), qint16(1));
        QCOMPARE(InterTypeFromText("Range"), qint16(2));
        QCOMPARE(InterTypeFromText("Copy"), qint16(3));
        QCOMPARE(InterTypeFromText("Other"), qint16(0));
        QCOMPARE(SenseFromText("Up"), qint16(0));
        QCOMPARE(SenseFromText("Down"), qint16(1));
        QCOMPARE(SenseFromText("Any"), qint16(2));
        QCOMPARE(SenseFromText("x"), qint16(0));
        QComboBox c;
        c.addItems({"Trigger", "Gate", "Range"});
        QCOMPARE(IndexOfInterType(2, &c), 2);
        QCOMPARE(IndexOfInterType(3, &c), 0);
        QComboBox s;
        s.addItems({"Up", "Down", "Any"});
        QCOMPARE(IndexOfSense(1, &s), 1);
        QCOMPARE(IndexOfSense(5, &s), 0);
    }

    void sourcesAndTargetsBothWays()
    {
        AddArduino(0, "First", 1, {2});
        AddArduino(1, "Second", 1, {2});
        AddMidiPort(0, 1, "InA");
        AddMidiPort(2, 1, "InB");
        AddMidiPort(3, 2, "OutA");
        QComboBox c;
        c.addItems({"Second"});
        QCOMPARE(IndexOfSource(7, 1, &c), 0);
        QCOMPARE(IndexOfSource(7, 0, &c), 0);   // absent: the number itself
        QCOMPARE(TargetIndexFromText("Second", 0, 7), qint16(1));
        QCOMPARE(TargetIndexFromText("InB", 1, 6), qint16(1));
        QCOMPARE(TargetIndexFromText("OutA", 0, 6), qint16(0));
        QCOMPARE(TargetIndexFromText("anything", 4, 1), qint16(4));
        QComboBox q;
        q.addItems({"Next Part", "Previous Part", "Increment Variable"});
        QCOMPARE(IndexOfSource(9, 6, &q), 2);
        QCOMPARE(IndexOfSource(9, 8, &q), 8);
        QCOMPARE(TargetIndexFromText("Increment Variable", 2, 9), qint16(6));
        QCOMPARE(TargetIndexFromText("Next Part", 0, 9), qint16(4));
        QCOMPARE(IndexOfSource(1, 5, &q), 5);
    }

    void arduinoItemIndex()
    {
        AddArduino(0, "A", 2, {1, 1, 1});
        QComboBox c;
        FillItems(&c, 7, 0, 0, true);
        QCOMPARE(IndexOfArduinoItem(1, 0, &c), QString("1"));
        QCOMPARE(IndexOfArduinoItem(3, 0, &c), QString("3"));   // "Digital 1"
        QCOMPARE(IndexOfArduinoItem(9, 0, &c), QString("0"));
        QCOMPARE(TextToItem("Digital 1", 7, 0), qint16(3));
    }

    void itemKinds()
    {
        AddArduino(0, "A", 2, {0, 1, 2, 3});
        QCOMPARE(GetItemKind(1, 0, "x", 9), qint16(0));
        QCOMPARE(GetItemKind(1, 0, "x", 10), qint16(1));
        QCOMPARE(GetItemKind(2, 0, "Eje RX", 3), qint16(0));
        QCOMPARE(GetItemKind(2, 0, "Sensor 1", 4), qint16(1));
        QCOMPARE(GetItemKind(7, 0, "Analog 1", 1), qint16(0));
        QCOMPARE(GetItemKind(7, 0, "Digital 0", 2), qint16(0));
        QCOMPARE(GetItemKind(7, 0, "Digital 1", 2), qint16(1));
        QCOMPARE(GetItemKind(7, 0, "Digital 2", 2), qint16(1));
        QCOMPARE(GetItemKind(7, 0, "Digital 3", 2), qint16(2));
        QCOMPARE(GetItemKind(7, 0, "", -1), qint16(0));   // a pin that cannot be read enters the first branch
        QCOMPARE(GetItemKind(8, 0, "", 0), qint16(0));
        QCOMPARE(GetItemKind(3, 0, "", 0), qint16(0));
        QCOMPARE(GetItemKind(10, 0, "Rec/Stop", 0), qint16(1));
        QCOMPARE(GetItemKind(6, 0, "MIDI File", 3), qint16(1));
        QCOMPARE(GetItemKind(6, 0, "Note On", 0), qint16(0));
        QCOMPARE(GetItemKind(9, 0, "1", 0), qint16(2));
        QCOMPARE(GetItemKind(0, 0, "", 0), qint16(2));
    }

    void commonVideoApplications()
    {
        gMainConfig.m_iNQDMs = 2;
        gMainConfig.m_iNAppPerQDM(0) = 3;
        gMainConfig.m_iNAppPerQDM(1) = 2;
        gMainConfig.m_strVideoAppLabel(0, 0) = "A";
        gMainConfig.m_strVideoAppLabel(1, 0) = "A";
        gMainConfig.m_strVideoAppLabel(0, 1) = "B";
        gMainConfig.m_strVideoAppLabel(1, 1) = "C";
        gMainConfig.m_strVideoAppLabel(0, 2) = "D";
        gMainConfig.m_strVideoAppLabel(1, 2) = "D";
        QCOMPARE(CommonVideoApps(), QList<int>{0});
    }
};

QTEST_MAIN(TestSourcesTargets)
#include "test_sourcestargets.moc"
