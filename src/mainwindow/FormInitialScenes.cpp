// The scene list: selecting, adding, editing, removing, moving and colouring scenes.
#include "mainwindow/FormInitial.h"
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include "mainwindow/FormAddEditScene.h"
#include "model/CMainConfig.h"
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "model/SceneLists.h"
#include "robots/FormBots.h"
#include "robots/FormBotsInteraction.h"
#include "rules/ModuleRuleDisplay.h"
#include "support/ModuleGUI.h"
#include "support/OnError.h"

namespace {

// Selects row `index` of the list; a row that does not exist is left alone.
void selectRow(QTreeWidget* list, int index)
{
    if (QTreeWidgetItem* row = list->topLevelItem(index))
        row->setSelected(true);
}

void deselectRow(QTreeWidget* list, int index)
{
    if (QTreeWidgetItem* row = list->topLevelItem(index))
        row->setSelected(false);
}

// The table of moved scenes of CommandUp and CommandDown: room for 201
// entries, set from index 0 to 199 only.
CheckedArray<bool, 0, 200> freshMoveFlags()
{
    CheckedArray<bool, 0, 200> flags;
    for (int i = 0; i <= 199; ++i)
        flags(i) = true;
    return flags;
}

void setSceneOfParts(CScene& scene, qint16 sceneID)
{
    for (const auto& part : scene.PartList)
        part->m_iScene = sceneID;
}

} // namespace

void FormInitial::appendScene(const std::shared_ptr<CScene>& scene)
{
    // Appended when no scene row is selected or the place is after the last scene.
    if (gCurrentScene == gScenes.Count() || iSelectedRow == -1)
        gScenes.Add(scene);
    else
        gScenes.Add(scene, iSelectedRow + 1);
    ++gLastScene;
    for (int index = gCurrentScene + 1; index <= gLastScene; ++index)
        ++gScenes.Item(index + 1)->m_iID;
}

void FormInitial::ListMain2_Click()
{
    if (gGlobalRuleView) {
        CommandAdd->setText(QStringLiteral("Add rule"));
        ListGlobalRules->clearSelection();
        gGlobalRuleView = false;
        RefreshRuleView();
    }
    iSelectedRow = -1;
    const int rows = ListMain2->topLevelItemCount();
    for (int r = 0; r < rows; ++r)
        if (ListMain2->topLevelItem(r)->isSelected())
            iSelectedRow = static_cast<qint16>(r);
    if (iSelectedRow == rows - 1)
        iSelectedRow = -1;   // the end row
    if (gScenes.Count() > 0) {
        if (ListGlobalRules->count() == 0)
            ListGlobalRules->addItem(QStringLiteral("GLOBAL RULES"));
    } else {
        ListGlobalRules->clear();
    }
    if (iSelectedRow == -1 || iSelectedRow == rows) {
        CommandUp->setEnabled(false);
        CommandDown->setEnabled(false);
        CommandUp->hide();
        CommandDown->hide();
        CommandAdd->setEnabled(false);
    } else {
        CommandUp->setEnabled(true);
        CommandDown->setEnabled(true);
        CommandUp->show();
        CommandDown->show();
        gCurrentScene = iSelectedRow;
        gCurrentPart = 0;
        CommandAdd->setEnabled(true);
    }
    RefreshRuleView();
}


// ---------------------------------------------------------------- add, edit, remove

void FormInitial::CommandAddScene_Click() { AddScene_Click(); }
void FormInitial::CommandEdit_Click() { EditScene_Click(); }
void FormInitial::CommandDelete_Click() { Remove_Click(); }

void FormInitial::AddScene_Click()
{
    const int rows = ListMain2->topLevelItemCount();
    qint16 reselect = iSelectedRow;
    if (reselect == rows - 1)
        reselect = -1;   // the end row
    const bool sceneRow = iSelectedRow != -1 && iSelectedRow < rows - 1;
    gCurrentScene = sceneRow ? iSelectedRow : static_cast<qint16>(gLastScene + 1);
    gSceneDialogMode = 1;
    {
        FormAddEditScene dialog(this);
        dialog.exec();
    }
    if (gMainConfig.m_bUpdate) {
        auto scene = std::make_shared<CScene>();
        scene->m_iID = gCurrentScene;
        scene->m_strName = gSceneDlgName;
        scene->m_strRemarks = gSceneDlgRemarks;
        scene->m_iNumParts = 0;
        scene->m_iColor = 0;
        for (int i = 0; i < gMainConfig.m_iNFlash; ++i)
            Skip([&] { scene->m_strMovie(i) = gSceneDlgMovies(i); });
        scene->InitPartList();
        const auto& part = scene->PartList.Item(1);
        for (int i = 0; i < gMainConfig.m_iNVideoCaps; ++i) {
            Skip([&] {
                const auto& capture = part->m_VideoCapture(i);
                capture->m_iFPS = gSceneDlgFPS(i);
                capture->m_iQuality = gSceneDlgQuality(i);
                capture->m_strRootFolder = gSceneDlgRootFolder(i);
                capture->m_iNumFolders = gSceneDlgNFolders(i);
                capture->m_iMaxTime = gSceneDlgMaxT(i);
            });
        }
        appendScene(scene);
        FillSceneListView(ListMain2);
        gMainConfig.m_bUpdate = false;
    }
    deselectRow(ListMain2, 0);
    selectRow(ListMain2, reselect);
    iSelectedRow = reselect;
}

void FormInitial::EditScene_Click()
{
    if (iSelectedRow == -1 || iSelectedRow >= ListMain2->topLevelItemCount() - 1)
        return;
    gCurrentScene = iSelectedRow;
    gCurrentPart = 0;
    std::shared_ptr<CScene> scene;
    Skip([&] { scene = gScenes.Item(gCurrentScene + 1); });
    if (!scene)
        return;   // the list is out of step with the scenes: there is nothing to edit
    gSceneDlgName = scene->m_strName;
    gSceneDlgRemarks = scene->m_strRemarks;
    for (int i = 0; i < gMainConfig.m_iNFlash; ++i)
        Skip([&] { gSceneDlgMovies(i) = scene->m_strMovie(i); });
    gSceneDialogMode = 2;
    {
        FormAddEditScene dialog(this);
        dialog.exec();
    }
    if (gMainConfig.m_bUpdate) {
        scene->m_strName = gSceneDlgName;
        scene->m_strRemarks = gSceneDlgRemarks;
        for (int i = 0; i < gMainConfig.m_iNFlash; ++i)
            Skip([&] { scene->m_strMovie(i) = gSceneDlgMovies(i); });
        for (int i = 0; i < gMainConfig.m_iNVideoCaps; ++i) {
            Skip([&] {
                const auto& capture = scene->PartList.Item(gCurrentPart + 1)->m_VideoCapture(i);
                capture->m_iFPS = gSceneDlgFPS(i);
                capture->m_iQuality = gSceneDlgQuality(i);
                capture->m_strRootFolder = gSceneDlgRootFolder(i);
                capture->m_iNumFolders = gSceneDlgNFolders(i);
                capture->m_iMaxTime = gSceneDlgMaxT(i);
            });
        }
        FillSceneListView(ListMain2);
        gMainConfig.m_bUpdate = false;
    }
    deselectRow(ListMain2, 0);
    selectRow(ListMain2, iSelectedRow);
}

// Remove acts on what has the focus: the scene list, the rule list, or nothing.
// The button takes the focus when clicked, so it is the menu entry that removes.
void FormInitial::Remove_Click()
{
    QWidget* focus = QApplication::focusWidget();
    if (focus == ListMain2) {
        if (iSelectedRow == -1 || iSelectedRow >= ListMain2->topLevelItemCount() - 1)
            return;
        if (gScenes.Count() == 1) {
            MsgBox(QStringLiteral("Every performance must have at least one scene"), MsgButtons::OK, MsgIcon::None,
                   QStringLiteral("Can't delete scene"));
            return;
        }
        gCurrentScene = iSelectedRow;
        gCurrentPart = 0;
        if (MsgBox(QStringLiteral("Delete Scene?"), MsgButtons::YesNo) == MsgAnswer::No)
            return;
        Skip([&] { gScenes.Remove(gCurrentScene + 1); });
        --gLastScene;
        for (int i = 1; i <= gScenes.Count(); ++i)
            gScenes.Item(i)->m_iID = static_cast<qint16>(i - 1);
        gDirty = true;
        FillSceneListView(ListMain2);
        // The row at position iSelectedRow, counted from 1: the one above the removed scene.
        deselectRow(ListMain2, 0);
        selectRow(ListMain2, iSelectedRow - 1);
        if (iSelectedRow >= 2)
            --iSelectedRow;
    } else if (focus == ListEvents) {
        RemoveSelectedRules();
    }
}

void FormInitial::ListMain2_DblClick()
{
    if (!ListMain2->itemAt(QPoint(int(fMouseX), int(fMouseY))))
        return;
    EditScene_Click();
}

void FormInitial::ListMain2_MouseDown(float x, float y)
{
    fMouseX = x;
    fMouseY = y;
}

void FormInitial::ListMain2_MouseUp(float x, float y)
{
    fMouseX = x;
    fMouseY = y;
}

// ---------------------------------------------------------------- moving and colouring

void FormInitial::CommandUp_Click()
{
    auto flags = freshMoveFlags();
    int reselect = 0;
    const int rows = ListMain2->topLevelItemCount();
    for (int r = 0; r <= rows - 2; ++r) {
        if (!ListMain2->topLevelItem(r)->isSelected())
            continue;
        if (r == 0)
            return;
        gCurrentScene = static_cast<qint16>(r);
        gCurrentPart = 0;
        if (Holds([&] { return !flags(r); }))
            continue;
        Skip([&] { flags(r) = false; });
        const auto moved = gScenes.Item(r + 1);
        gScenes.Remove(r + 1);
        gScenes.Add(moved, r);
        setSceneOfParts(*moved, static_cast<qint16>(r - 1));
        --moved->m_iID;
        const auto& above = gScenes.Item(r + 1);
        setSceneOfParts(*above, static_cast<qint16>(r));
        ++above->m_iID;
        reselect = r - moved->m_iNumParts - 1;
        gDirty = true;
    }
    FillSceneListView(ListMain2);
    iSelectedRow = static_cast<qint16>(reselect + 1);
    ListMain2->clearSelection();
    for (int k = 0; k < ListMain2->topLevelItemCount(); ++k)
        if (Holds([&] { return !flags(k + 1); }))
            selectRow(ListMain2, k);
    ListMain2->viewport()->update();
}

void FormInitial::CommandDown_Click()
{
    auto flags = freshMoveFlags();
    int reselect = 0;
    const int rows = ListMain2->topLevelItemCount();
    for (int r = rows - 1; r >= 0; --r) {
        if (!ListMain2->topLevelItem(r)->isSelected())
            continue;
        if (r == rows - 1 || r == gLastScene)
            return;   // the end row, or the scene is the last already
        gCurrentScene = static_cast<qint16>(r);
        gCurrentPart = 0;
        // The flag of the row below: the row the scene goes to.
        if (Holds([&] { return !flags(r + 1); }))
            continue;
        Skip([&] { flags(r + 1) = false; });
        const auto moved = gScenes.Item(r + 1);
        gScenes.Remove(r + 1);
        if (r + 2 > gScenes.Count())
            gScenes.Add(moved);
        else
            gScenes.Add(moved, r + 2);
        setSceneOfParts(*moved, static_cast<qint16>(r + 1));
        ++moved->m_iID;
        const auto& below = gScenes.Item(r + 1);
        setSceneOfParts(*below, static_cast<qint16>(r));
        --below->m_iID;
        reselect = r + moved->m_iNumParts + 1;
        gDirty = true;
    }
    FillSceneListView(ListMain2);
    iSelectedRow = static_cast<qint16>(reselect - 1);
    ListMain2->clearSelection();
    for (int k = 0; k < ListMain2->topLevelItemCount(); ++k)
        if (Holds([&] { return !flags(k); }))
            selectRow(ListMain2, k);
    ListMain2->viewport()->update();
}

// Colour codes 8 to 14 for buttons 0 to 6, the default 0 for button 7. A colour
// alone is no change that asks to be saved.
void FormInitial::CommandColor_Click(int index)
{
    const int rows = ListMain2->topLevelItemCount();
    for (int i = 0; i < rows - 1; ++i) {
        if (!ListMain2->topLevelItem(i)->isSelected())
            continue;
        const auto& scene = gScenes.Item(i + 1);
        scene->m_iColor = static_cast<qint16>(index + 8);
        if (index == 7)
            scene->m_iColor = 0;
    }
    FillSceneListView(ListMain2);
}

// The robot rules of the selected subscene, or the list of scenes.
void FormInitial::CommandBots_Click()
{
    if (iSelectedRow >= 0 && iSelectedRow < gScenes.Count()) {
        gCurrentScene = iSelectedRow;
        gCurrentPart = 0;
        FormBotsInteraction rules(this);
        rules.exec();
    } else {
        FormBots scenes(this);
        scenes.exec();
    }
}
