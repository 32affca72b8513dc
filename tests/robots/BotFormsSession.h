#pragma once
// A started main window on its rule view, from which the robot forms are
// opened with CommandBots, and small helpers to act on the robot forms.
#include <QtTest>
#include <QAction>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>
#include <memory>
#include "files/CBotEvent.h"
#include "files/FileTestHelpers.h"
#include "files/ModuleClipboard.h"
#include "mainwindow/MainWindowSession.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "model/SceneLists.h"
#include "support/DialogDriver.h"

inline std::shared_ptr<CBotEvent> Bot(int robot, const QString& remarks)
{
    auto bot = std::make_shared<CBotEvent>();
    bot->m_iRukaBot = static_cast<qint16>(robot);
    bot->m_strRemarks = remarks;
    return bot;
}

// The subscene at 1-based positions.
inline CPart& PartAt(int scene, int part) { return *gScenes.Item(scene)->PartList.Item(part); }

inline QListWidget* listOf(QWidget* root, const QString& name) { return DialogDriver::find<QListWidget>(root, name); }

inline QStringList rowsOf(QWidget* root, const QString& name)
{
    QStringList rows;
    QListWidget* list = listOf(root, name);
    for (int r = 0; r < list->count(); ++r)
        rows << list->item(r)->text();
    return rows;
}

// 0-based row selected in a list box, -1 for none.
inline int selectedRowOf(QWidget* root, const QString& name)
{
    QListWidget* list = listOf(root, name);
    const auto items = list->selectedItems();
    return items.isEmpty() ? -1 : list->row(items.first());
}

inline QRect rowRect(QListWidget* list, int row)
{
    QListWidgetItem* item = list->item(row);
    if (!item)
        throw std::runtime_error(("no row " + QString::number(row) + " in " + list->objectName()).toStdString());
    list->scrollToItem(item);
    return list->visualItemRect(item);
}

inline void clickRow(QWidget* root, const QString& name, int row)
{
    QListWidget* list = listOf(root, name);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rowRect(list, row).center());
}

inline void doubleClickRow(QWidget* root, const QString& name, int row)
{
    QListWidget* list = listOf(root, name);
    const QPoint at = rowRect(list, row).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
}

// A menu entry of a form, chosen.
inline void choose(QWidget* root, const QString& name)
{
    auto* entry = root->findChild<QAction*>(name);
    if (!entry)
        throw std::runtime_error(("no menu entry " + name).toStdString());
    entry->trigger();
}

// True while `dialog` is the dialog in front.
inline bool inFront(QWidget* dialog) { return QApplication::activeModalWidget() == dialog; }

class BotFormsSession : public MainWindowSession {
public:
    // A new performance, its rule view on show.
    void startOnRuleView()
    {
        gClipboard.Clear();
        start();
        QTest::mouseClick(form->findChild<QPushButton*>(QStringLiteral("CommandConn")), Qt::LeftButton);
    }
    QTreeWidget* scenes() { return form->findChild<QTreeWidget*>(QStringLiteral("ListMain2")); }
    // The scene list shows gScenes again, as after a change of scenes.
    void refillScenes() { FillSceneListView(scenes()); }
    // Clicks a row of the scene list; the last row is the end row.
    void clickSceneRow(int row)
    {
        QTreeWidget* list = scenes();
        QTreeWidgetItem* item = list->topLevelItem(row);
        QVERIFY(item);
        list->scrollToItem(item);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
    }
    void clickEndRow() { clickSceneRow(scenes()->topLevelItemCount() - 1); }
    // Clicks CommandBots; the driver holds the actions for the dialogs that come.
    void clickBots(DialogDriver& driver)
    {
        QTest::mouseClick(form->findChild<QPushButton*>(QStringLiteral("CommandBots")), Qt::LeftButton);
        QVERIFY2(driver.finished(), qPrintable(driver.error()));
    }
};
