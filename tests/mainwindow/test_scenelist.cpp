// The scene list as an operator works it: add, edit, remove, move and colour
// scenes through the buttons, the Scenes menu, the double click and the scene dialog.
#include <QtTest>
#include <cstdio>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>
#include "files/ModuleSaveOpen.h"
#include "mainwindow/FormAddEditScene.h"
#include "mainwindow/FormInitial.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "model/SceneLists.h"
#include "support/DialogDriver.h"
#include "support/TestData.h"
#include "mainwindow/MainWindowSession.h"

static const char* const kColourAndClose = "--colour-and-close";

class TestSceneList : public QObject {
    Q_OBJECT
private:
    MainWindowSession session;
    std::unique_ptr<FormInitial>& form = session.form;

    QTreeWidget* scenes() { return form->ListMain2; }
    QStringList sceneRows()
    {
        QStringList rows;
        for (int i = 0; i < scenes()->topLevelItemCount(); ++i)
            rows << scenes()->topLevelItem(i)->text(0);
        return rows;
    }
    QList<int> selectedRows()
    {
        QList<int> rows;
        for (int i = 0; i < scenes()->topLevelItemCount(); ++i)
            if (scenes()->topLevelItem(i)->isSelected())
                rows << i;
        return rows;
    }
    QPoint rowCenter(int row) { return scenes()->visualItemRect(scenes()->topLevelItem(row)).center(); }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {})
    {
        scenes()->scrollToItem(scenes()->topLevelItem(row));
        QTest::mouseClick(scenes()->viewport(), Qt::LeftButton, modifiers, rowCenter(row));
    }
    void click(const QString& name) { DialogDriver::click(form.get(), name); }
    // Scenes S0, S1, ... made in code and shown in the list.
    void makeScenes(int count)
    {
        gScenes.Clear();
        for (int i = 0; i < count; ++i) {
            auto scene = std::make_shared<CScene>();
            scene->m_strName = QStringLiteral("S%1").arg(i);
            scene->InitPartList();
            gScenes.Add(scene);
        }
        gLastScene = static_cast<qint16>(count - 1);
        FillSceneListView(scenes());
    }
    QStringList sceneNames()
    {
        QStringList names;
        for (const auto& scene : gScenes)
            names << scene->m_strName;
        return names;
    }
    void addThroughDialog(const QString& name, const QString& remarks = QString())
    {
        DialogDriver driver;
        driver.next([name, remarks](QWidget* w) {
            DialogDriver::type(w, QStringLiteral("TextName"), name);
            DialogDriver::type(w, QStringLiteral("TextRemarks"), remarks);
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        click(QStringLiteral("CommandAddScene"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
    }
    // Remove from the Scenes menu with the focus on the scene list, answering the question.
    QStringList removeThroughMenu(QMessageBox::StandardButton button)
    {
        QStringList texts;
        DialogDriver driver;
        driver.next([&texts, button](QWidget* w) {
            auto* box = qobject_cast<QMessageBox*>(w);
            texts << w->windowTitle() << DialogDriver::text(w);
            if (box && box->icon() != QMessageBox::NoIcon)
                texts << QStringLiteral("icon %1").arg(int(box->icon()));
            if (box)
                texts << QStringLiteral("buttons %1").arg(int(box->standardButtons()), 0, 16);
            DialogDriver::press(w, button);
        });
        form->activateWindow();
        [&] { QVERIFY(QTest::qWaitForWindowActive(form.get())); }();
        scenes()->setFocus();
        session.menu("Remove")->trigger();
        [&] { QVERIFY2(driver.finished(), qPrintable(driver.error())); }();
        return texts;
    }

private slots:
    void initTestCase()
    {
        session.start();
        form->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(form.get()));
    }
    void init()
    {
        gDirty = false;
        gMainConfig.m_iNFlash = 0;
        gMainConfig.m_iNVideoCaps = 0;
        form->CommandConn_Click();
        form->New_Click();
        QCOMPARE(sceneRows(), (QStringList{QStringLiteral("000  SCENE 1"), QString()}));
    }
    void cleanupTestCase() { session.stop(); }

    // ---------------------------------------------------------------- add

    void withTheEndRowSelectedAddAppends()
    {
        clickRow(1);
        QCOMPARE(form->iSelectedRow, qint16(-1));
        addThroughDialog(QStringLiteral("Finale"));
        QCOMPARE(sceneRows(), (QStringList{"000  SCENE 1", "001  FINALE", ""}));
        QCOMPARE(gLastScene, qint16(1));
        QCOMPARE(gDirty, true);
        QCOMPARE(form->iSelectedRow, qint16(-1));
        QVERIFY(selectedRows().isEmpty());
    }

    void theScenesMenuAddsLikeTheButton()
    {
        QMenu* menu = form->findChild<QMenu*>(QStringLiteral("ScenesParts"));
        QVERIFY(menu);
        QCOMPARE(menu->title(), QStringLiteral("&Scenes"));
        QStringList entries;
        for (QAction* a : menu->actions())
            entries << a->objectName() + QLatin1Char('=') + a->text();
        QVERIFY(entries.contains(QStringLiteral("AddScene=&Add")));
        QVERIFY(entries.contains(QStringLiteral("EditScene=&Edit")));
        QVERIFY(entries.contains(QStringLiteral("Remove=&Remove")));
        makeScenes(2);
        clickRow(1);
        DialogDriver driver;
        driver.next([](QWidget* w) {
            DialogDriver::type(w, QStringLiteral("TextName"), QStringLiteral("Bridge"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        session.menu("AddScene")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(sceneNames(), (QStringList{"S0", "BRIDGE", "S1"}));
        QCOMPARE(gScenes.Item(3)->m_iID, qint16(2));
        QCOMPARE(selectedRows(), (QList<int>{1}));
    }

    void withSceneTwoSelectedAddInsertsAtIndexTwo()
    {
        makeScenes(4);
        clickRow(2);
        addThroughDialog(QStringLiteral("Interlude"));
        QCOMPARE(sceneNames(), (QStringList{"S0", "S1", "INTERLUDE", "S2", "S3"}));
        QCOMPARE(sceneRows().mid(2, 2), (QStringList{"002  INTERLUDE", "003  S2"}));
        // The row remembered before the dialog is selected again: now the new scene's.
        QCOMPARE(form->iSelectedRow, qint16(2));
        QCOMPARE(selectedRows(), (QList<int>{2}));
        QCOMPARE(gCurrentScene, qint16(2));
        QCOMPARE(gLastScene, qint16(4));
    }

    void theSceneDialogOffersItsDefaultsAndCancelAddsNothing()
    {
        gMainConfig.m_iNFlash = 2;
        gMainConfig.m_iNVideoCaps = 1;
        clickRow(0);
        DialogDriver driver;
        QString caption, name, fps, quality, root, folders, maxT, number;
        QList<bool> shown;
        driver.next([&](QWidget* w) {
            caption = w->windowTitle();
            name = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextName"))->text();
            fps = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextFPS(0)"))->text();
            quality = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextQuality(0)"))->text();
            root = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextRootFolder(0)"))->text();
            folders = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextNFolders(0)"))->text();
            maxT = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextMaxT(0)"))->text();
            number = DialogDriver::find<QLabel>(w, QStringLiteral("LabelNumScene"))->text();
            for (const char* control : {"TextMovie(1)", "CommandMovie1(1)", "Label4(1)", "TextMovie(2)", "CommandMovie1(2)",
                                        "Label4(2)", "FrameCapture(0)", "FrameCapture(1)"})
                shown << DialogDriver::find<QWidget>(w, QString::fromLatin1(control))->isVisible();
            DialogDriver::click(w, QStringLiteral("CommandCancel"));
        });
        click(QStringLiteral("CommandAddScene"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(caption, QStringLiteral("Add Scene"));
        QCOMPARE(name, QStringLiteral("New Scene"));
        QCOMPARE((QStringList{fps, quality, root, folders, maxT}), (QStringList{"5", "50", "C:\\", "8", "3"}));
        QCOMPARE(number, QStringLiteral("0"));
        QCOMPARE(shown, (QList<bool>{true, true, true, false, false, false, true, false}));
        QCOMPARE(gScenes.Count(), 1);
        QCOMPARE(form->iSelectedRow, qint16(0));
        QCOMPARE(selectedRows(), (QList<int>{0}));
    }

    void aSceneNameIsStoredInCapitalsAndRemarksKeepTheirCase()
    {
        clickRow(1);
        addThroughDialog(QStringLiteral("Dark Forest"), QStringLiteral("Lights low, then Up"));
        QCOMPARE(gScenes.Item(2)->m_strName, QStringLiteral("DARK FOREST"));
        QCOMPARE(gScenes.Item(2)->m_strRemarks, QStringLiteral("Lights low, then Up"));
    }

    void anEmptyMovieBoxAsksAboutTheExtensionOnce()
    {
        gMainConfig.m_iNFlash = 3;
        clickRow(1);
        DialogDriver driver;
        QString question, title;
        QMessageBox::Icon icon = QMessageBox::Warning;
        driver.next([](QWidget* w) {
            DialogDriver::type(w, QStringLiteral("TextMovie(1)"), QStringLiteral("intro.swf"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        driver.next([&](QWidget* w) {
            question = DialogDriver::text(w);
            title = w->windowTitle();
            icon = qobject_cast<QMessageBox*>(w)->icon();
            DialogDriver::press(w, QMessageBox::Yes);
        });
        click(QStringLiteral("CommandAddScene"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(driver.seen().size(), 2);   // one question for the two empty rows
        QCOMPARE(question, QStringLiteral("WARNING: Flash movies must have .swf file extension. Do you wish to continue?"));
        QCOMPARE(title, QStringLiteral("QEL Setup"));
        QCOMPARE(icon, QMessageBox::NoIcon);
        QCOMPARE(gScenes.Count(), 2);
        QCOMPARE(gScenes.Item(2)->m_strMovie(0), QString());
        QCOMPARE(gScenes.Item(2)->m_strMovie(1), QStringLiteral("intro.swf"));
    }

    void noAtTheExtensionQuestionKeepsTheDialogOpenAndTheNextOkAsksAgain()
    {
        gMainConfig.m_iNFlash = 1;
        clickRow(1);
        DialogDriver driver;
        QPointer<QWidget> dialog;
        bool openAfterNo = false;
        driver.next([&](QWidget* w) {
            dialog = w;
            DialogDriver::type(w, QStringLiteral("TextMovie(0)"), QStringLiteral("intro.mov"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        driver.next([&](QWidget* w) {
            DialogDriver::press(w, QMessageBox::No);
            openAfterNo = dialog && dialog->isVisible();
            DialogDriver::click(dialog, QStringLiteral("CommandOK"));
        });
        driver.next([](QWidget* w) { DialogDriver::press(w, QMessageBox::Yes); });
        click(QStringLiteral("CommandAddScene"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(openAfterNo);
        QCOMPARE(driver.seen().size(), 3);
        QCOMPARE(gScenes.Item(2)->m_strMovie(0), QStringLiteral("intro.mov"));
    }

    void theFlashBrowseButtonTakesTheFileNameWithoutItsFolder()
    {
        gMainConfig.m_iNFlash = 1;
        QTemporaryDir dir;
        const QString movie = dir.filePath(QStringLiteral("opening.swf"));
        WriteBytes(movie, QByteArray("FWS"));
        clickRow(1);
        DialogDriver driver;
        QString shown;
        driver.next([&shown](QWidget* w) {
            DialogDriver::click(w, QStringLiteral("CommandMovie1(0)"));   // returns when the file dialog has closed
            shown = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextMovie(0)"))->text();
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        driver.next([movie](QWidget* w) { DialogDriver::chooseFile(w, QDir::toNativeSeparators(movie)); });
        click(QStringLiteral("CommandAddScene"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(shown, QStringLiteral("opening.swf"));
        QCOMPARE(gScenes.Item(2)->m_strMovie(0), QStringLiteral("opening.swf"));
    }

    // ---------------------------------------------------------------- edit

    void aDoubleClickOnASceneRowEditsIt()
    {
        gMainConfig.m_iNVideoCaps = 1;
        gScenes.Item(1)->PartList.Item(1)->m_VideoCapture(0)->m_iFPS = 12;
        gSceneDlgFPS(0) = 7;   // left by an earlier dialog
        DialogDriver driver;
        QString caption, name, fps;
        driver.next([&](QWidget* w) {
            caption = w->windowTitle();
            name = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextName"))->text();
            fps = DialogDriver::find<QLineEdit>(w, QStringLiteral("TextFPS(0)"))->text();
            DialogDriver::type(w, QStringLiteral("TextName"), QStringLiteral("Prologue"));
            DialogDriver::type(w, QStringLiteral("TextQuality(0)"), QStringLiteral("75"));
            DialogDriver::type(w, QStringLiteral("TextFPS(0)"), QStringLiteral("fast"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        QTest::mouseDClick(scenes()->viewport(), Qt::LeftButton, {}, rowCenter(0));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(caption, QStringLiteral("Edit Scene"));
        QCOMPARE(name, QStringLiteral("SCENE 1"));
        QCOMPARE(fps, QStringLiteral("12"));
        QCOMPARE(sceneRows().first(), QStringLiteral("000  PROLOGUE"));
        const auto& capture = gScenes.Item(1)->PartList.Item(1)->m_VideoCapture(0);
        QCOMPARE(capture->m_iQuality, qint16(75));
        // A text that is no number leaves the variable as it was, and the subscene takes that.
        QCOMPARE(capture->m_iFPS, qint16(7));
        QCOMPARE(selectedRows(), (QList<int>{0}));
        QCOMPARE(gDirty, true);
    }

    void editOnTheEndRowDoesNothing()
    {
        clickRow(1);
        DialogDriver driver(1500);
        session.menu("EditScene")->trigger();
        click(QStringLiteral("CommandEdit"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(driver.seen().isEmpty());
        QCOMPARE(gDirty, false);
    }

    void aDoubleClickBelowTheRowsDoesNothing()
    {
        clickRow(0);
        DialogDriver driver(1500);
        const QPoint below(rowCenter(1).x(), scenes()->viewport()->height() - 5);
        QVERIFY(!scenes()->itemAt(below));
        QTest::mouseDClick(scenes()->viewport(), Qt::LeftButton, {}, below);
        QTest::qWait(100);
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(driver.seen().isEmpty());
        QCOMPARE(gScenes.Item(1)->m_strName, QStringLiteral("SCENE 1"));
    }

    void editShowsTheScenesValuesAndCancelChangesNothing()
    {
        gMainConfig.m_iNFlash = 2;
        const auto& scene = gScenes.Item(1);
        scene->m_strRemarks = QStringLiteral("Quiet start");
        scene->m_strMovie(0) = QStringLiteral("a.swf");
        scene->m_strMovie(1) = QStringLiteral("b.swf");
        clickRow(0);
        DialogDriver driver;
        QStringList shown;
        driver.next([&shown](QWidget* w) {
            shown << w->windowTitle();
            for (const char* box : {"TextName", "TextRemarks", "TextMovie(0)", "TextMovie(1)"})
                shown << DialogDriver::find<QLineEdit>(w, QString::fromLatin1(box))->text();
            shown << DialogDriver::find<QLabel>(w, QStringLiteral("LabelNumScene"))->text();
            DialogDriver::type(w, QStringLiteral("TextName"), QStringLiteral("Other"));
            DialogDriver::type(w, QStringLiteral("TextMovie(1)"), QStringLiteral("c.swf"));
            DialogDriver::click(w, QStringLiteral("CommandCancel"));
        });
        session.menu("EditScene")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(shown, (QStringList{"Edit Scene", "SCENE 1", "Quiet start", "a.swf", "b.swf", "0"}));
        QCOMPARE(scene->m_strName, QStringLiteral("SCENE 1"));
        QCOMPARE(scene->m_strMovie(1), QStringLiteral("b.swf"));
        QCOMPARE(sceneRows().first(), QStringLiteral("000  SCENE 1"));
        QCOMPARE(selectedRows(), (QList<int>{0}));
        QCOMPARE(gDirty, false);
    }

    void editWithTheButtonStoresTheTypedMovieWithoutAQuestion()
    {
        gMainConfig.m_iNFlash = 2;
        makeScenes(3);
        gScenes.Item(2)->m_strMovie(0) = QStringLiteral("a.swf");
        gScenes.Item(2)->m_strMovie(1) = QStringLiteral("b.swf");
        clickRow(1);
        DialogDriver driver;
        driver.next([](QWidget* w) {
            DialogDriver::type(w, QStringLiteral("TextRemarks"), QStringLiteral("Second Act"));
            DialogDriver::type(w, QStringLiteral("TextMovie(1)"), QStringLiteral("c.SWF"));
            DialogDriver::click(w, QStringLiteral("CommandOK"));
        });
        click(QStringLiteral("CommandEdit"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QCOMPARE(driver.seen().size(), 1);   // every movie ends in .swf: nothing is asked
        QCOMPARE(gScenes.Item(2)->m_strRemarks, QStringLiteral("Second Act"));
        QCOMPARE(gScenes.Item(2)->m_strMovie(0), QStringLiteral("a.swf"));
        QCOMPARE(gScenes.Item(2)->m_strMovie(1), QStringLiteral("c.SWF"));
        QCOMPARE(sceneNames(), (QStringList{"S0", "S1", "S2"}));
        QCOMPARE(selectedRows(), (QList<int>{1}));
        QCOMPARE(gCurrentScene, qint16(1));
        QCOMPARE(gDirty, true);
    }

    // ---------------------------------------------------------------- remove

    void removingTheOnlySceneShowsTheMessage()
    {
        clickRow(0);
        const QStringList texts = removeThroughMenu(QMessageBox::Ok);
        QCOMPARE(texts, (QStringList{"Can't delete scene", "Every performance must have at least one scene",
                                     QStringLiteral("buttons %1").arg(int(QMessageBox::Ok), 0, 16)}));
        QCOMPARE(gScenes.Count(), 1);
        QCOMPARE(sceneRows(), (QStringList{"000  SCENE 1", ""}));
        QCOMPARE(gDirty, false);
    }

    void removeWithNoChangesNothing()
    {
        makeScenes(3);
        clickRow(1);
        const QStringList texts = removeThroughMenu(QMessageBox::No);
        QCOMPARE(texts, (QStringList{"QEL Setup", "Delete Scene?",
                                     QStringLiteral("buttons %1").arg(int(QMessageBox::Yes | QMessageBox::No), 0, 16)}));
        QCOMPARE(sceneNames(), (QStringList{"S0", "S1", "S2"}));
        QCOMPARE(gDirty, false);
    }

    void removeWithYesSelectsTheRowAboveByTheOffByOne_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QList<int>>("selected");
        QTest::addColumn<int>("selectedRowAfter");
        QTest::newRow("row 0: nothing selected") << 0 << QList<int>{} << 0;
        QTest::newRow("row 1: row 0 selected, number stays 1") << 1 << QList<int>{0} << 1;
        QTest::newRow("row 3: row 2 selected, number 2") << 3 << QList<int>{2} << 2;
    }
    void removeWithYesSelectsTheRowAboveByTheOffByOne()
    {
        QFETCH(int, row);
        QFETCH(QList<int>, selected);
        QFETCH(int, selectedRowAfter);
        makeScenes(5);
        clickRow(row);
        removeThroughMenu(QMessageBox::Yes);
        QStringList expected = {"S0", "S1", "S2", "S3", "S4"};
        expected.removeAt(row);
        QCOMPARE(sceneNames(), expected);
        QCOMPARE(gLastScene, qint16(3));
        QCOMPARE(sceneRows().at(row), QStringLiteral("%1  %2").arg(row, 3, 10, QLatin1Char('0')).arg(expected.at(row)));
        QCOMPARE(selectedRows(), selected);
        QCOMPARE(form->iSelectedRow, qint16(selectedRowAfter));
        QCOMPARE(gDirty, true);
    }

    void theRemoveButtonTakesTheFocusAndRemovesNothing()
    {
        makeScenes(3);
        clickRow(1);
        DialogDriver driver(1500);
        click(QStringLiteral("CommandDelete"));
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(driver.seen().isEmpty());
        QCOMPARE(gScenes.Count(), 3);
    }

    void removeWithTheFocusOnTheRuleListLeavesTheScenes()
    {
        makeScenes(3);
        clickRow(1);
        DialogDriver driver(1500);
        form->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(form.get()));
        form->ListEvents->setFocus();
        QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(form->ListEvents));
        session.menu("Remove")->trigger();
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
        QVERIFY(driver.seen().isEmpty());
        QCOMPARE(gScenes.Count(), 3);
    }

    // ---------------------------------------------------------------- moves

    void oneSceneMovesUpAndDown()
    {
        makeScenes(4);
        clickRow(2);
        click(QStringLiteral("CommandUp"));
        QCOMPARE(sceneNames(), (QStringList{"S0", "S2", "S1", "S3"}));
        QCOMPARE(selectedRows(), (QList<int>{1}));
        QCOMPARE(form->iSelectedRow, qint16(1));
        QCOMPARE(gScenes.Item(2)->PartList.Item(1)->m_iScene, qint16(1));
        QCOMPARE(gScenes.Item(3)->PartList.Item(1)->m_iScene, qint16(2));
        QCOMPARE(gDirty, true);
        click(QStringLiteral("CommandDown"));
        QCOMPARE(sceneNames(), (QStringList{"S0", "S1", "S2", "S3"}));
        QCOMPARE(selectedRows(), (QList<int>{2}));
        QCOMPARE(form->iSelectedRow, qint16(2));
        QCOMPARE(gScenes.Item(3)->PartList.Item(1)->m_iScene, qint16(2));
        QCOMPARE(gScenes.Item(2)->PartList.Item(1)->m_iScene, qint16(1));
        click(QStringLiteral("CommandDown"));
        QCOMPARE(sceneNames(), (QStringList{"S0", "S1", "S3", "S2"}));
        QCOMPARE(selectedRows(), (QList<int>{3}));
        // The last scene goes no further down: the command ends.
        click(QStringLiteral("CommandDown"));
        QCOMPARE(sceneNames(), (QStringList{"S0", "S1", "S3", "S2"}));
    }

    void aBlockMovesUpAndStaysSelectedUntilTheFirstRowIsInIt()
    {
        makeScenes(5);
        clickRow(2);
        clickRow(3, Qt::ControlModifier);
        click(QStringLiteral("CommandUp"));
        QCOMPARE(sceneNames(), (QStringList{"S0", "S2", "S3", "S1", "S4"}));
        QCOMPARE(selectedRows(), (QList<int>{1, 2}));
        click(QStringLiteral("CommandUp"));
        QCOMPARE(sceneNames(), (QStringList{"S2", "S3", "S0", "S1", "S4"}));
        QCOMPARE(selectedRows(), (QList<int>{0, 1}));
        gDirty = false;
        click(QStringLiteral("CommandUp"));   // the first row is selected: nothing moves
        QCOMPARE(sceneNames(), (QStringList{"S2", "S3", "S0", "S1", "S4"}));
        QCOMPARE(selectedRows(), (QList<int>{0, 1}));
        QCOMPARE(gDirty, false);
    }

    void aBlockMovesDown()
    {
        makeScenes(5);
        clickRow(1);
        clickRow(2, Qt::ControlModifier);
        click(QStringLiteral("CommandDown"));
        QCOMPARE(sceneNames(), (QStringList{"S0", "S3", "S1", "S2", "S4"}));
        QCOMPARE(selectedRows(), (QList<int>{2, 3}));
        QCOMPARE(gScenes.Item(3)->m_iID, qint16(2));
    }

    void aSceneBeyondTheTableOfFlagsIsNotMovedAndTheErrorIsIgnored()
    {
        makeScenes(203);
        clickRow(202);
        click(QStringLiteral("CommandUp"));
        QCOMPARE(gScenes.Item(203)->m_strName, QStringLiteral("S202"));
        QCOMPARE(gScenes.Item(202)->m_strName, QStringLiteral("S201"));
        QCOMPARE(scenes()->topLevelItemCount(), 204);
        // Inside the table the move is made.
        clickRow(150);
        click(QStringLiteral("CommandUp"));
        QCOMPARE(gScenes.Item(150)->m_strName, QStringLiteral("S150"));
        QVERIFY(scenes()->topLevelItem(149)->isSelected());
    }

    void aSceneBeyondTheTableOfFlagsIsNotMovedDownAndTheErrorIsIgnored()
    {
        makeScenes(203);
        // Row 200 reads the flag at 201, outside the table: the error is ignored and the row skipped.
        clickRow(200);
        click(QStringLiteral("CommandDown"));
        QCOMPARE(gScenes.Item(201)->m_strName, QStringLiteral("S200"));
        QCOMPARE(gScenes.Item(202)->m_strName, QStringLiteral("S201"));
        QCOMPARE(scenes()->topLevelItemCount(), 204);
        QCOMPARE(gDirty, false);
        // Row 199 reads the flag at 200, inside the table but never set: it counts as moved.
        clickRow(199);
        click(QStringLiteral("CommandDown"));
        QCOMPARE(gScenes.Item(200)->m_strName, QStringLiteral("S199"));
        QCOMPARE(gDirty, false);
        // Row 198 reads the flag at 199, the last one set: the move is made.
        clickRow(198);
        click(QStringLiteral("CommandDown"));
        QCOMPARE(gScenes.Item(199)->m_strName, QStringLiteral("S199"));
        QCOMPARE(gScenes.Item(200)->m_strName, QStringLiteral("S198"));
        QVERIFY(scenes()->topLevelItem(199)->isSelected());
        QCOMPARE(gDirty, true);
    }

    // ---------------------------------------------------------------- colours

    void coloursReachTheScenesFileAndAskNothing()
    {
        makeScenes(8);
        for (int button = 0; button < 8; ++button) {
            clickRow(button);
            click(QStringLiteral("CommandColor(%1)").arg(button));
        }
        QCOMPARE(gDirty, false);
        const QList<qint16> codes = {8, 9, 10, 11, 12, 13, 14, 0};
        for (int i = 0; i < 8; ++i)
            QCOMPARE(gScenes.Item(i + 1)->m_iColor, codes[i]);
        // The row's text colour: 9 is blue.
        QCOMPARE(scenes()->topLevelItem(1)->foreground(0).color(), QColor(0x00, 0x00, 0xFF));
        QTemporaryDir dir;
        session.saveAs(native(dir.filePath(QStringLiteral("Colours.qel"))));
        const QByteArray file = ReadBytes(dir.filePath(QStringLiteral("Colours/Scenes.cfg")));
        int from = 0;
        for (int i = 0; i < 8; ++i) {
            const QByteArray lines = "; Name:\r\nS" + QByteArray::number(i) + "\r\n\r\n; Color:\r\n "
                                     + QByteArray::number(codes[i]) + " \r\n";
            const int at = int(file.indexOf(lines, from));
            QVERIFY2(at >= 0, lines.constData());
            from = at + 1;
        }
    }

    void aColourChangeThenClosingAsksNothingAndTheAutoSaveHasTheColour()
    {
        // In a copy of this program in a folder of its own, so that the auto-save lands there.
        QTemporaryDir folder;
        const QString copy = folder.filePath(QStringLiteral("colour_child"));
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), copy));
        QFile::setPermissions(copy, QFile::permissions(copy) | QFileDevice::ExeOwner);
        QProcess child;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        child.setProcessEnvironment(env);
        child.start(copy, {QString::fromLatin1(kColourAndClose)});
        QVERIFY(child.waitForFinished(60000));
        const QString out = QString::fromLocal8Bit(child.readAllStandardOutput());
        QCOMPARE(child.exitCode(), 0);
        QVERIFY2(out.contains(QStringLiteral("dialogs: 0")), qPrintable(out));   // nothing was asked
        const QStringList saves = QDir(folder.filePath(QStringLiteral("AutoSave"))).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        QCOMPARE(saves.size(), 1);
        const QByteArray file = ReadBytes(folder.filePath(QStringLiteral("AutoSave/%1/Scenes.cfg").arg(saves.first())));
        QVERIFY(file.contains("; Name:\r\nSCENE 1\r\n\r\n; Color:\r\n 12 \r\n"));
    }
};

// The child: colour the first scene red, then close the window as a person would.
static int colourAndClose()
{
    MainWindowSession session;
    session.start();
    session.form->CommandConn_Click();
    QTreeWidget* list = session.form->ListMain2;
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->topLevelItem(0)).center());
    DialogDriver::click(session.form.get(), QStringLiteral("CommandColor(4)"));
    DialogDriver driver(1500);
    session.form->close();
    driver.finished();
    std::printf("dirty: %d\ndialogs: %d\n", int(gDirty), int(driver.seen().size()));
    std::fflush(stdout);
    session.form.reset();
    return 0;
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], kColourAndClose) == 0)
        return colourAndClose();
    TestSceneList test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}
#include "test_scenelist.moc"
