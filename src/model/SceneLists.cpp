#include "model/SceneLists.h"
#include <QListWidget>
#include <QTreeWidget>
#include "model/CScene.h"
#include "model/SceneColors.h"

void FillSceneListBox(QListWidget* list)
{
    list->clear();
    for (int i = 1; i <= gScenes.Count(); ++i) {
        const auto& scene = gScenes.Item(i);
        scene->m_iID = static_cast<qint16>(i - 1);
        list->addItem(scene->BuildListItem());
    }
}

void FillSceneListView(QTreeWidget* list)
{
    list->clear();
    for (int i = 1; i <= gScenes.Count(); ++i) {
        const auto& scene = gScenes.Item(i);
        scene->m_iID = static_cast<qint16>(i - 1);
        auto* row = new QTreeWidgetItem(list, QStringList{scene->BuildListItem()});
        if (const auto color = SceneColor(scene->m_iColor))
            row->setForeground(0, *color);
    }
    new QTreeWidgetItem(list, QStringList{QString()});
}
