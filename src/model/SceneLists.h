#pragma once
// The two fills of a scene list. Both renumber m_iID of every scene to its
// position - 1, which is what keeps the numbers in step with the order.
class QListWidget;
class QTreeWidget;

// A plain list box: one row per scene, BuildListItem's text.
void FillSceneListBox(QListWidget* list);

// The main window's report-style list: one coloured row per scene, then the
// empty end row, whose selection means that no scene is selected.
void FillSceneListView(QTreeWidget* list);
