// The robot forms opened from CommandBots of the main window, driven as an
// operator drives them: the scene list, the rule lists of a subscene, removal,
// the dialog of one robot rule, and the clipboard.
#include <QtTest>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include "files/ModuleClipboard.h"
#include "mainwindow/FormInitial.h"
#include "robots/ModuleBotTransit.h"
#include "rules/CEvent.h"
#include "rules/ModuleRuleEdit.h"
#include "robots/BotFormsSession.h"

namespace {

QString labelText(QWidget* root, const char* name)
{
    return DialogDriver::find<QLabel>(root, QString::fromLatin1(name))->text();
}

// The captions of the labels of a form, in no particular order.
QStringList labelCaptions(QWidget* root)
{
    QStringList captions;
    for (QLabel* label : root->findChildren<QLabel*>())
        captions << label->text();
    return captions;
}

// "Menu: entry=caption entry=caption" for a menu and its entries, in menu order.
QString menuOf(QWidget* root, const char* name)
{
    auto* menu = root->findChild<QMenu*>(QString::fromLatin1(name));
    if (!menu)
        return QStringLiteral("no menu ") + QString::fromLatin1(name);
    QString text = menu->title() + QLatin1Char(':');
    for (QAction* entry : menu->actions())
        text += QLatin1Char(' ') + entry->objectName() + QLatin1Char('=') + entry->text();
    return text;
}

} // namespace

class TestBotForms : public QObject {
    Q_OBJECT
private:
    BotFormsSession session;
    QTemporaryDir dir;

    // Two scenes: INTRO with the subscenes "first" and "second", DANCE with one.
    // The second subscene of INTRO holds two robot rules.
    void twoScenesWithRules()
    {
        gScenes.Clear();
        AddTestScene(QStringLiteral("INTRO"), 2);
        AddTestScene(QStringLiteral("DANCE"), 1);
        PartAt(1, 1).m_strName = QStringLiteral("first");
        PartAt(1, 2).m_strName = QStringLiteral("second");
        PartAt(2, 1).m_strName = QStringLiteral("solo");
        PartAt(1, 2).AddBotEvent(Bot(1, QStringLiteral("arm")), 1);
        PartAt(1, 2).AddBotEvent(Bot(3, QStringLiteral("vilna")), 2);
        session.refillScenes();
    }
    // Three rules in the subscene of DANCE, opened from its scene row.
    void danceWithThreeRules()
    {
        twoScenesWithRules();
        PartAt(2, 1).AddBotEvent(Bot(1, QStringLiteral("one")), 1);
        PartAt(2, 1).AddBotEvent(Bot(3, QStringLiteral("two")), 2);
        PartAt(2, 1).AddBotEvent(Bot(5, QStringLiteral("three")), 3);
        session.clickSceneRow(1);
    }
    QStringList remarksOf(int scene, int part)
    {
        QStringList remarks;
        for (const auto& bot : PartAt(scene, part).BotEvents)
            remarks << bot->m_strRemarks;
        return remarks;
    }

private slots:
    void initTestCase() { QVERIFY(dir.isValid()); }
    void init()
    {
        gDirty = false;
        gRuleAccepted = false;
        session.startOnRuleView();
    }
    void cleanup()
    {
        gClipboard.Clear();
        session.stop();
    }

    void commandBotsIsOfferedOnTheRuleView()
    {
        auto* bots = session.form->findChild<QPushButton*>(QStringLiteral("CommandBots"));
        QVERIFY(bots->isVisible());
        QVERIFY(bots->isEnabled());
    }

    void everyControlOfTheRobotFormsHasItsNameKindAndCaption()
    {
        danceWithThreeRules();
        QStringList missing;
        auto need = [&missing](bool found, const QString& what) {
            if (!found)
                missing << what;
        };
        auto has = [&need](QWidget* w, const char* kind, const QString& name, const QString& caption = QString()) {
            QObject* control = w->findChild<QObject*>(name);
            bool ok = control && control->inherits(kind);
            if (ok && !caption.isNull()) {
                if (auto* button = qobject_cast<QAbstractButton*>(control))
                    ok = button->text() == caption;
                else
                    ok = false;
            }
            need(ok, name);
        };
        QStringList menus;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            need(w->objectName() == QStringLiteral("FormBotsInteraction"), QStringLiteral("FormBotsInteraction"));
            need(w->windowTitle() == QStringLiteral("RukaBots Interaction"), QStringLiteral("its caption"));
            for (const char* name : {"LabelNumScene", "LabelNumPart", "LabelName"})
                has(w, "QLabel", QString::fromLatin1(name));
            has(w, "QListWidget", QStringLiteral("ListBotsInteraction"));
            has(w, "QListWidget", QStringLiteral("ListRemarks"));
            has(w, "QPushButton", QStringLiteral("CommandAdd"));
            has(w, "QPushButton", QStringLiteral("CommandRemove"));
            has(w, "QPushButton", QStringLiteral("CommandClose"), QStringLiteral("Close"));
            for (const char* menu : {"File", "Edit", "GoTo", "Events"})
                menus << menuOf(w, menu);
            DialogDriver::click(w, QStringLiteral("CommandAdd"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        driver.next([&](QWidget* w) {
            need(w->objectName() == QStringLiteral("FormAddEditBotInter"), QStringLiteral("FormAddEditBotInter"));
            need(w->windowTitle() == QStringLiteral("Add RukaBot Interaction Event"), QStringLiteral("its caption"));
            for (const char* name : {"ComboInterType", "ComboSource", "ComboTarget", "ComboItemEmbrague",
                                     "ComboItemSelect"})
                has(w, "QComboBox", QString::fromLatin1(name));
            const QStringList captions = labelCaptions(w);
            for (const char* caption : {"Event Type", "Source", "RukaBot", "Embrague", "Item (Select)", "Remarks"})
                need(captions.contains(QString::fromLatin1(caption)), QString::fromLatin1(caption));
            for (int n = 1; n <= 6; ++n) {
                has(w, "QComboBox", QStringLiteral("ComboItem%1").arg(n));
                has(w, "QLineEdit", QStringLiteral("TextMIDIFile%1").arg(n));
                has(w, "QPushButton", QStringLiteral("CommandBrowse%1").arg(n));
                need(captions.contains(QStringLiteral("Item %1").arg(n)), QStringLiteral("Item %1").arg(n));
                need(captions.contains(QStringLiteral("MIDI File %1").arg(n)), QStringLiteral("MIDI File %1").arg(n));
            }
            has(w, "QCheckBox", QStringLiteral("CheckLoop"), QStringLiteral("Loop"));
            has(w, "QLineEdit", QStringLiteral("TextRemarks"));
            for (const char* name : {"LabelNumScene", "LabelNumPart", "LabelNumEvent", "LabelName"})
                has(w, "QLabel", QString::fromLatin1(name));
            has(w, "QPushButton", QStringLiteral("CommandOK"));
            has(w, "QPushButton", QStringLiteral("CommandCancel"));
            menus << menuOf(w, "File");
            DialogDriver::click(w, QStringLiteral("CommandCancel"));
        });
        session.clickBots(driver);
        session.clickEndRow();
        DialogDriver scenes;
        scenes.next([&](QWidget* w) {
            need(w->objectName() == QStringLiteral("FormBots"), QStringLiteral("FormBots"));
            need(w->windowTitle() == QStringLiteral("RukaBots Interaction"), QStringLiteral("its caption"));
            has(w, "QListWidget", QStringLiteral("ListBots"));
            need(labelCaptions(w).contains(QStringLiteral("Scene    Subscene    Name")), QStringLiteral("list caption"));
            has(w, "QPushButton", QStringLiteral("CommandClose"), QStringLiteral("Close"));
            for (const char* menu : {"File", "GoTo"})
                menus << menuOf(w, menu);
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(scenes);
        QCOMPARE(missing, QStringList());
        QCOMPARE(menus, (QStringList{
                            "&File: Save=&Save Quit=&Quit",
                            "&Edit: Copy=&Copy Cut=C&ut Paste=&Paste",
                            "&Go To: ToMovies=&Movies ToAudio=&Audio ToLights=&Lights ToVideoCapture=Video &Capture",
                            "E&vents: AddEvent=&Add EditEvent=&Edit RemoveEvent=&Remove",
                            "&File: Save=&Save Quit=&Quit",
                            "&File: Save=&Save Quit=&Quit",
                            "&Go To: ToMovies=&Movies ToAudio=&MIDI ToOSC=&OSC ToArduino=&Arduino ToLights=&Lights "
                            "ToVideoCapture=Video &Capture"}));
    }

    void aSceneRowOpensTheRulesOfItsFirstSubscene()
    {
        twoScenesWithRules();
        session.clickSceneRow(1);
        QString title, scene, part, name;
        QStringList rules, remarks;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            title = w->windowTitle();
            scene = labelText(w, "LabelNumScene");
            part = labelText(w, "LabelNumPart");
            name = labelText(w, "LabelName");
            rules = rowsOf(w, QStringLiteral("ListBotsInteraction"));
            remarks = rowsOf(w, QStringLiteral("ListRemarks"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(driver);
        QCOMPARE(driver.seen(), QStringList{QStringLiteral("RukaBots Interaction")});
        QCOMPARE(gCurrentScene, qint16(1));
        QCOMPARE(gCurrentPart, qint16(0));
        QCOMPARE(scene, QStringLiteral("1"));
        QCOMPARE(part, QStringLiteral("0"));
        QCOMPARE(name, QStringLiteral("solo"));
        QCOMPARE(rules, QStringList{QString()});
        QCOMPARE(remarks, QStringList{QString()});
    }

    void theEndRowOpensTheSceneList()
    {
        twoScenesWithRules();
        session.clickEndRow();
        QString name, caption;
        QStringList rows;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            name = w->objectName();
            caption = labelText(w, "Label1");
            rows = rowsOf(w, QStringLiteral("ListBots"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(driver);
        QCOMPARE(name, QStringLiteral("FormBots"));
        QCOMPARE(caption, QStringLiteral("Scene    Subscene    Name"));
        QCOMPARE(rows, (QStringList{"000  INTRO", "001  DANCE"}));
    }

    void aSceneListRowIsCountedInSubscenes()
    {
        // Row 1 shows DANCE, but the rows are counted through the subscenes of
        // the scenes before: INTRO has two, so row 1 is INTRO's second subscene.
        twoScenesWithRules();
        session.clickEndRow();
        QString scene, part, name;
        QStringList rules, remarks;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListBots"), 1);
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        driver.next([&](QWidget* w) {
            scene = labelText(w, "LabelNumScene");
            part = labelText(w, "LabelNumPart");
            name = labelText(w, "LabelName");
            rules = rowsOf(w, QStringLiteral("ListBotsInteraction"));
            remarks = rowsOf(w, QStringLiteral("ListRemarks"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(driver);
        QCOMPARE(gCurrentScene, qint16(0));
        QCOMPARE(gCurrentPart, qint16(1));
        QCOMPARE(scene, QStringLiteral("0"));
        QCOMPARE(part, QStringLiteral("1"));
        QCOMPARE(name, QStringLiteral("second"));
        QCOMPARE(rules, (QStringList{" 0, 0, 1,", " 1, 0, 1,", ""}));
        QCOMPARE(remarks, (QStringList{"arm", "vilna", ""}));
    }

    void aSceneListRowBeyondAllSubscenesOpensNothing()
    {
        // A scene without subscenes takes no row: the last row then stands for
        // no subscene at all.
        twoScenesWithRules();
        gScenes.Item(1)->RemovePart(2);
        gScenes.Item(1)->RemovePart(1);
        AddTestScene(QStringLiteral("END"), 1);
        session.refillScenes();
        session.clickEndRow();
        bool stayedInFront = false;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListBots"), 2);
            stayedInFront = inFront(w);
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(driver);
        QVERIFY(stayedInFront);
        QCOMPARE(driver.seen().size(), 1);
    }

    void closeQuitAndEveryGoToEntryUnloadTheSceneList()
    {
        const QStringList ways = {"CommandClose", "Quit", "ToMovies", "ToAudio", "ToOSC",
                                  "ToArduino", "ToLights", "ToVideoCapture"};
        for (const QString& way : ways) {
            session.clickEndRow();
            bool hidden = false;
            DialogDriver driver;
            driver.next([&](QWidget* w) {
                if (way.startsWith(QStringLiteral("Command")))
                    DialogDriver::click(w, way);
                else
                    choose(w, way);
                hidden = !w->isVisible();
            });
            session.clickBots(driver);
            QVERIFY2(hidden, qPrintable(way));
        }
    }

    void quitOfTheSceneListAndOfTheRuleListsClearsTheAcceptedFlag()
    {
        danceWithThreeRules();
        QList<bool> hidden;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            gRuleAccepted = true;
            choose(w, QStringLiteral("Quit"));
            hidden << !w->isVisible();
        });
        session.clickBots(driver);
        QVERIFY(!gRuleAccepted);
        session.clickEndRow();
        DialogDriver scenes;
        scenes.next([&](QWidget* w) {
            gRuleAccepted = true;
            choose(w, QStringLiteral("Quit"));
            hidden << !w->isVisible();
        });
        session.clickBots(scenes);
        QVERIFY(!gRuleAccepted);
        QCOMPARE(hidden, (QList<bool>{true, true}));
    }

    void theSceneListMenusCarryTheirCaptions()
    {
        session.clickEndRow();
        QStringList captions;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            for (const char* name : {"Save", "Quit", "ToMovies", "ToAudio", "ToOSC", "ToArduino", "ToLights",
                                     "ToVideoCapture"})
                captions << w->findChild<QAction*>(QString::fromLatin1(name))->text();
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(driver);
        QCOMPARE(captions, (QStringList{"&Save", "&Quit", "&Movies", "&MIDI", "&OSC", "&Arduino", "&Lights",
                                        "Video &Capture"}));
    }

    void closeQuitAndEveryGoToEntryUnloadTheRuleLists()
    {
        const QStringList ways = {"CommandClose", "Quit", "ToMovies", "ToAudio", "ToLights", "ToVideoCapture"};
        for (const QString& way : ways) {
            session.clickSceneRow(0);
            bool hidden = false;
            DialogDriver driver;
            driver.next([&](QWidget* w) {
                if (way.startsWith(QStringLiteral("Command")))
                    DialogDriver::click(w, way);
                else
                    choose(w, way);
                hidden = !w->isVisible();
            });
            session.clickBots(driver);
            QVERIFY2(hidden, qPrintable(way));
        }
    }

    void aRowSelectedInOneListIsSelectedInTheOther()
    {
        danceWithThreeRules();
        QList<int> mirrored;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListBotsInteraction"), 1);
            mirrored << selectedRowOf(w, QStringLiteral("ListRemarks"));
            clickRow(w, QStringLiteral("ListRemarks"), 2);
            mirrored << selectedRowOf(w, QStringLiteral("ListBotsInteraction"));
            clickRow(w, QStringLiteral("ListRemarks"), 3);
            mirrored << selectedRowOf(w, QStringLiteral("ListBotsInteraction"));
            clickRow(w, QStringLiteral("ListBotsInteraction"), 0);
            mirrored << selectedRowOf(w, QStringLiteral("ListRemarks"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(driver);
        QCOMPARE(mirrored, (QList<int>{1, 2, 3, 0}));
    }

    void aRowSelectedWithTheArrowKeysIsSelectedInTheOtherList()
    {
        danceWithThreeRules();
        QList<int> mirrored;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            QListWidget* rules = listOf(w, QStringLiteral("ListBotsInteraction"));
            QListWidget* remarks = listOf(w, QStringLiteral("ListRemarks"));
            clickRow(w, QStringLiteral("ListBotsInteraction"), 0);
            QTest::keyClick(rules, Qt::Key_Down);
            mirrored << selectedRowOf(w, QStringLiteral("ListRemarks"));
            QTest::keyClick(rules, Qt::Key_Down);
            mirrored << selectedRowOf(w, QStringLiteral("ListRemarks"));
            clickRow(w, QStringLiteral("ListRemarks"), 3);
            QTest::keyClick(remarks, Qt::Key_Up);
            mirrored << selectedRowOf(w, QStringLiteral("ListBotsInteraction"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(driver);
        QCOMPARE(mirrored, (QList<int>{1, 2, 2}));
    }

    void removeWithYesDeletesTheRuleAndRefillsBothLists()
    {
        danceWithThreeRules();
        QStringList rules, remarks;
        DialogDriver driver;
        QString question, title;
        QMessageBox::StandardButtons buttons;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListRemarks"), 1);
            DialogDriver::click(w, QStringLiteral("CommandRemove"));
            rules = rowsOf(w, QStringLiteral("ListBotsInteraction"));
            remarks = rowsOf(w, QStringLiteral("ListRemarks"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        driver.next([&](QWidget* box) {
            question = DialogDriver::text(box);
            title = box->windowTitle();
            buttons = qobject_cast<QMessageBox*>(box)->standardButtons();
            DialogDriver::press(box, QMessageBox::Yes);
        });
        session.clickBots(driver);
        QCOMPARE(question, QStringLiteral("Delete Event?"));
        QCOMPARE(title, QStringLiteral("QEL Setup"));
        QCOMPARE(buttons, QMessageBox::Yes | QMessageBox::No);
        QVERIFY(gDirty);
        QCOMPARE(remarksOf(2, 1), (QStringList{"one", "three"}));
        QCOMPARE(rules, (QStringList{" 0, 1, 0,", " 1, 1, 0,", ""}));
        QCOMPARE(remarks, (QStringList{"one", "three", ""}));
    }

    void removeWithNoChangesNothing()
    {
        danceWithThreeRules();
        QStringList rules;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListBotsInteraction"), 0);
            DialogDriver::click(w, QStringLiteral("CommandRemove"));
            rules = rowsOf(w, QStringLiteral("ListBotsInteraction"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        driver.next([](QWidget* box) { DialogDriver::press(box, QMessageBox::No); });
        session.clickBots(driver);
        QVERIFY(!gDirty);
        QCOMPARE(remarksOf(2, 1), (QStringList{"one", "two", "three"}));
        QCOMPARE(rules, (QStringList{" 0, 1, 0,", " 1, 1, 0,", " 2, 1, 0,", ""}));
    }

    void removeWithTheEmptyRowSelectedDoesNothing()
    {
        danceWithThreeRules();
        bool askedNothing = false;
        QStringList rules;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListBotsInteraction"), 3);
            DialogDriver::click(w, QStringLiteral("CommandRemove"));
            choose(w, QStringLiteral("RemoveEvent"));
            askedNothing = inFront(w);
            rules = rowsOf(w, QStringLiteral("ListBotsInteraction"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(driver);
        QVERIFY(askedNothing);
        QCOMPARE(driver.seen().size(), 1);
        QVERIFY(!gDirty);
        QCOMPARE(remarksOf(2, 1), (QStringList{"one", "two", "three"}));
        QCOMPARE(rules.size(), 4);
    }

    void okOfTheRuleDialogDoesNothingAtAll()
    {
        danceWithThreeRules();
        bool openAfterOK = false;
        bool acceptedAfterOK = true;
        QString title;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListBotsInteraction"), 1);
            DialogDriver::click(w, QStringLiteral("CommandAdd"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        driver.next([&](QWidget* w) {
            title = w->windowTitle();
            DialogDriver::type(w, QStringLiteral("TextRemarks"), QStringLiteral("typed"));
            DialogDriver::find<QCheckBox>(w, QStringLiteral("CheckLoop"))->click();
            DialogDriver::click(w, QStringLiteral("CommandOK"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
            openAfterOK = w->isVisible() && inFront(w);
            acceptedAfterOK = gRuleAccepted;
            DialogDriver::click(w, QStringLiteral("CommandCancel"));
        });
        session.clickBots(driver);
        QCOMPARE(title, QStringLiteral("Add RukaBot Interaction Event"));
        QVERIFY(openAfterOK);
        QVERIFY(!acceptedAfterOK);
        QVERIFY(!gDirty);
        QCOMPARE(remarksOf(2, 1), (QStringList{"one", "two", "three"}));
    }

    void theRuleDialogOffersNothingInItsLists()
    {
        danceWithThreeRules();
        int entries = -1;
        QStringList labels;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            DialogDriver::click(w, QStringLiteral("CommandAdd"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        driver.next([&](QWidget* w) {
            entries = 0;
            for (const char* name : {"ComboInterType", "ComboSource", "ComboTarget", "ComboItem1", "ComboItem2",
                                     "ComboItem3", "ComboItem4", "ComboItem5", "ComboItem6", "ComboItemEmbrague",
                                     "ComboItemSelect"})
                entries += DialogDriver::find<QComboBox>(w, QString::fromLatin1(name))->count();
            for (const char* name : {"LabelNumScene", "LabelNumPart", "LabelNumEvent", "LabelName"})
                labels << labelText(w, name);
            DialogDriver::click(w, QStringLiteral("CommandCancel"));
        });
        session.clickBots(driver);
        QCOMPARE(entries, 0);
        QCOMPARE(labels, (QStringList{"", "", "", ""}));
    }

    void quitOfTheRuleDialogClearsTheAcceptedFlag()
    {
        danceWithThreeRules();
        bool hidden = false;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            choose(w, QStringLiteral("AddEvent"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        driver.next([&](QWidget* w) {
            gRuleAccepted = true;
            choose(w, QStringLiteral("Quit"));
            hidden = !w->isVisible();
        });
        session.clickBots(driver);
        QVERIFY(hidden);
        QVERIFY(!gRuleAccepted);
        QCOMPARE(remarksOf(2, 1), (QStringList{"one", "two", "three"}));
    }

    void addAndEditHandTheModeAndTheRuleIndex()
    {
        danceWithThreeRules();
        QList<int> modes, indices;
        auto look = [&](QWidget* w) {
            modes << gRuleEditMode;
            indices << gRuleIndex;
            DialogDriver::click(w, QStringLiteral("CommandCancel"));
        };
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListBotsInteraction"), 1);
            DialogDriver::click(w, QStringLiteral("CommandAdd"));
            clickRow(w, QStringLiteral("ListRemarks"), 3);
            choose(w, QStringLiteral("AddEvent"));
            doubleClickRow(w, QStringLiteral("ListRemarks"), 2);
            doubleClickRow(w, QStringLiteral("ListBotsInteraction"), 0);
            clickRow(w, QStringLiteral("ListBotsInteraction"), 1);
            choose(w, QStringLiteral("EditEvent"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        for (int i = 0; i < 5; ++i)
            driver.next(look);
        session.clickBots(driver);
        QCOMPARE(modes, (QList<int>{1, 1, 2, 2, 2}));
        // The empty row gives the number of rows of the list, itself included.
        QCOMPARE(indices, (QList<int>{1, 4, 2, 0, 1}));
        QCOMPARE(remarksOf(2, 1), (QStringList{"one", "two", "three"}));
    }

    void withNoRowSelectedTheRuleIndexIsMinusOneAndAnAcceptedRuleGoesToTheEnd()
    {
        danceWithThreeRules();
        QList<int> modes, indices;
        QStringList remarks;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            choose(w, QStringLiteral("AddEvent"));
            choose(w, QStringLiteral("EditEvent"));
            remarks = rowsOf(w, QStringLiteral("ListRemarks"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        for (const char* text : {"appended", "nowhere"}) {
            driver.next([&, text](QWidget* w) {
                modes << gRuleEditMode;
                indices << gRuleIndex;
                gBotRemarks = QString::fromLatin1(text);
                gRuleAccepted = true;
                qobject_cast<QDialog*>(w)->done(QDialog::Accepted);
            });
        }
        session.clickBots(driver);
        QCOMPARE(modes, (QList<int>{1, 2}));
        QCOMPARE(indices, (QList<int>{-1, -1}));
        QCOMPARE(remarks, (QStringList{"one", "two", "three", "appended", ""}));
        QVERIFY(!gRuleAccepted);
    }

    void anAcceptedRuleIsBuiltFromTheFieldsInTransit()
    {
        // The dialog stores nothing itself; here the fields in transit are set and
        // the dialog is closed as accepted, as a dialog that stores would do.
        danceWithThreeRules();
        QStringList rulesAfterAdd, remarksAfterAdd, remarksAfterEdit;
        auto accept = [](const QString& remarks, int robot) {
            return [remarks, robot](QWidget* w) {
                gBotRemarks = remarks;
                gBotRukaBot = static_cast<qint16>(robot);
                gBotItem4 = 44;
                gBotMIDIFile2 = QStringLiteral("C:\\midi\\two.mid");
                gBotLoop = true;
                gRuleAccepted = true;
                qobject_cast<QDialog*>(w)->done(QDialog::Accepted);
            };
        };
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListBotsInteraction"), 1);
            DialogDriver::click(w, QStringLiteral("CommandAdd"));
            rulesAfterAdd = rowsOf(w, QStringLiteral("ListBotsInteraction"));
            remarksAfterAdd = rowsOf(w, QStringLiteral("ListRemarks"));
            doubleClickRow(w, QStringLiteral("ListBotsInteraction"), 3);
            remarksAfterEdit = rowsOf(w, QStringLiteral("ListRemarks"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        driver.next(accept(QStringLiteral("added"), 3));
        driver.next(accept(QStringLiteral("edited"), 5));
        session.clickBots(driver);
        QVERIFY(!gRuleAccepted);
        QCOMPARE(rulesAfterAdd, (QStringList{" 0, 1, 0,", " 1, 1, 0,", " 2, 1, 0,", " 3, 1, 0,", ""}));
        QCOMPARE(remarksAfterAdd, (QStringList{"one", "added", "two", "three", ""}));
        QCOMPARE(remarksAfterEdit, (QStringList{"one", "added", "two", "edited", ""}));
        const CBotEvent& added = *PartAt(2, 1).BotEvents.Item(2);
        QCOMPARE(added.m_iRukaBot, qint16(3));
        QCOMPARE(added.m_iItem4, qint16(44));
        QCOMPARE(added.m_strMIDIFile2, QStringLiteral("C:\\midi\\two.mid"));
        QVERIFY(added.m_bLoop);
        QCOMPARE(PartAt(2, 1).BotEvents.Item(4)->m_iRukaBot, qint16(5));
    }

    void anAcceptedRuleAddedFromTheEmptyRowGoesToTheEnd()
    {
        danceWithThreeRules();
        QStringList remarks;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListRemarks"), 3);
            DialogDriver::click(w, QStringLiteral("CommandAdd"));
            clickRow(w, QStringLiteral("ListRemarks"), 4);
            choose(w, QStringLiteral("EditEvent"));
            remarks = rowsOf(w, QStringLiteral("ListRemarks"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        for (const char* text : {"last", "nowhere"}) {
            driver.next([text](QWidget* w) {
                gBotRemarks = QString::fromLatin1(text);
                gRuleAccepted = true;
                qobject_cast<QDialog*>(w)->done(QDialog::Accepted);
            });
        }
        session.clickBots(driver);
        // An edit from the empty row has no rule to replace.
        QCOMPARE(remarks, (QStringList{"one", "two", "three", "last", ""}));
        QCOMPARE(remarksOf(2, 1), (QStringList{"one", "two", "three", "last"}));
        QVERIFY(!gRuleAccepted);
    }

    void browsePutsTheChosenMIDIFileIntoItsTextBox()
    {
        danceWithThreeRules();
        const QString song = QDir::toNativeSeparators(dir.filePath(QStringLiteral("song.mid")));
        QVERIFY(WriteBytes(song, QByteArray("MThd")));
        QStringList filters;
        QString third, afterCancel, others;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            DialogDriver::click(w, QStringLiteral("CommandAdd"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        driver.next([&](QWidget* w) {
            DialogDriver::click(w, QStringLiteral("CommandBrowse3"));
            third = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextMIDIFile3"))->text();
            DialogDriver::click(w, QStringLiteral("CommandBrowse3"));
            afterCancel = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextMIDIFile3"))->text();
            for (int n : {1, 2, 4, 5, 6})
                others += DialogDriver::find<QLineEdit>(w, QStringLiteral("TextMIDIFile%1").arg(n))->text();
            DialogDriver::click(w, QStringLiteral("CommandCancel"));
        });
        driver.next([&](QWidget* w) {
            filters = qobject_cast<QFileDialog*>(w)->nameFilters();
            DialogDriver::chooseFile(w, song);
        });
        driver.next([](QWidget* w) { DialogDriver::cancel(w); });
        session.clickBots(driver);
        QCOMPARE(filters, QStringList{QStringLiteral("MIDI files (*.mid)")});
        QCOMPARE(third, song);
        QCOMPARE(afterCancel, song);
        QCOMPARE(others, QString());
    }

    void copyAndPasteInsertAFreshCopyAheadOfTheSelectedRow()
    {
        danceWithThreeRules();
        QStringList remarks;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListBotsInteraction"), 2);
            choose(w, QStringLiteral("Copy"));
            clickRow(w, QStringLiteral("ListRemarks"), 0);
            choose(w, QStringLiteral("Paste"));
            clickRow(w, QStringLiteral("ListRemarks"), 4);
            choose(w, QStringLiteral("Paste"));
            remarks = rowsOf(w, QStringLiteral("ListRemarks"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(driver);
        QCOMPARE(remarks, (QStringList{"three", "one", "two", "three", "three", ""}));
        QVERIFY(!gDirty);
        // Each paste is a copy of its own, and the clipboard keeps its own too.
        PartAt(2, 1).BotEvents.Item(1)->m_strRemarks = QStringLiteral("changed");
        QCOMPARE(remarksOf(2, 1), (QStringList{"changed", "one", "two", "three", "three"}));
        QCOMPARE(gClipboard.Count(), 1);
        QCOMPARE(gClipboard.Item(1)->BotEvent->m_strRemarks, QStringLiteral("three"));
        QCOMPARE(gClipboard.Item(1)->BotEvent->m_iRukaBot, qint16(5));
    }

    void cutRemovesWithoutAQuestionAndPasteWithNoRowAppends()
    {
        danceWithThreeRules();
        QStringList afterCut, afterPaste;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListBotsInteraction"), 0);
            choose(w, QStringLiteral("Cut"));
            afterCut = rowsOf(w, QStringLiteral("ListRemarks"));
            choose(w, QStringLiteral("Paste"));
            afterPaste = rowsOf(w, QStringLiteral("ListRemarks"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(driver);
        QCOMPARE(driver.seen().size(), 1);
        QCOMPARE(afterCut, (QStringList{"two", "three", ""}));
        QCOMPARE(afterPaste, (QStringList{"two", "three", "one", ""}));
        QVERIFY(!gDirty);
    }

    void pasteSkipsTheRulesOfTheMainWindow()
    {
        // The clipboard is shared with the main window; a rule of a subscene on it
        // has no robot fields and is left out of a paste here.
        danceWithThreeRules();
        gClipboard.Clear();
        auto rule = std::make_shared<CClipboardItem>();
        rule->Event = std::make_shared<CEvent>();
        auto robot = std::make_shared<CClipboardItem>();
        robot->BotEvent = Bot(3, QStringLiteral("robot"));
        gClipboard.Add(rule);
        gClipboard.Add(robot);
        gClipboard.Add(rule);
        QStringList remarks;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListBotsInteraction"), 1);
            choose(w, QStringLiteral("Paste"));
            remarks = rowsOf(w, QStringLiteral("ListRemarks"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(driver);
        QCOMPARE(remarks, (QStringList{"one", "robot", "two", "three", ""}));
        QCOMPARE(gClipboard.Count(), 3);
        QVERIFY(PartAt(2, 1).BotEvents.Item(2) != robot->BotEvent);
    }

    void pasteOfOnlyMainWindowRulesAddsNothing()
    {
        danceWithThreeRules();
        gClipboard.Clear();
        auto rule = std::make_shared<CClipboardItem>();
        rule->Event = std::make_shared<CEvent>();
        gClipboard.Add(rule);
        QStringList remarks;
        DialogDriver driver;
        driver.next([&](QWidget* w) {
            clickRow(w, QStringLiteral("ListBotsInteraction"), 3);
            choose(w, QStringLiteral("Paste"));
            remarks = rowsOf(w, QStringLiteral("ListRemarks"));
            DialogDriver::click(w, QStringLiteral("CommandClose"));
        });
        session.clickBots(driver);
        QCOMPARE(remarks, (QStringList{"one", "two", "three", ""}));
    }
};

QTEST_MAIN(TestBotForms)
#include "test_botforms.moc"
