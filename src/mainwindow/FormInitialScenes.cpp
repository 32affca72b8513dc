// The scene list: selecting, adding and placing scenes.
#include "mainwindow/FormInitial.h"
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include "model/CScene.h"
#include "model/ModuleGlobals.h"
#include "robots/FormBots.h"
#include "robots/FormBotsInteraction.h"
#include "rules/ModuleRuleDisplay.h"

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
