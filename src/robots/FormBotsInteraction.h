#pragma once
// "RukaBots Interaction" of one subscene: its robot rules, with remarks in a
// second list that keeps the same row selected, and the operations on them.
#include <QDialog>

class CPart;
class QAction;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QMenu;
class QPushButton;

class FormBotsInteraction : public QDialog {
    Q_OBJECT
public:
    explicit FormBotsInteraction(QWidget* owner = nullptr);

    QMenu* File;
    QAction* Save;
    QAction* Quit;
    QMenu* Edit;
    QAction* Copy;
    QAction* Cut;
    QAction* Paste;
    QMenu* GoTo;
    QAction* ToMovies;
    QAction* ToAudio;
    QAction* ToLights;
    QAction* ToVideoCapture;
    QMenu* Events;
    QAction* AddEvent;
    QAction* EditEvent;
    QAction* RemoveEvent;

    QLabel* Label1;
    QLabel* LabelNumScene;
    QLabel* Label2;
    QLabel* LabelNumPart;
    QLabel* LabelName;
    QListWidget* ListBotsInteraction;   // row texts, then one empty row
    QListWidget* ListRemarks;           // remarks, then one empty row
    QPushButton* CommandAdd;
    QPushButton* CommandRemove;
    QPushButton* CommandClose;

    void Form_Load();
    // Both lists from the robot rules of the current subscene, each with its final empty row.
    void FillLists();

    void ListBotsInteraction_Click(QListWidgetItem* item);
    void ListRemarks_Click(QListWidgetItem* item);
    void ListBotsInteraction_DblClick(QListWidgetItem* item);
    void ListRemarks_DblClick(QListWidgetItem* item);

    void CommandAdd_Click();
    void CommandRemove_Click();
    void CommandClose_Click();
    void AddEvent_Click();
    void EditEvent_Click();
    void RemoveEvent_Click();
    void Copy_Click();
    void Cut_Click();
    void Paste_Click();
    void Save_Click();
    void Quit_Click();
    // Every Go To entry unloads the form.
    void GoTo_Click();

private:
    // The subscene gCurrentPart of scene gCurrentScene; throws RangeError when there is none.
    CPart& currentPart() const;
    // 0-based row selected in the lists, -1 when none.
    int selectedRow() const;
    // The number of robot rules of the subscene, 0 when there is no such subscene.
    int ruleCount() const;
    // Opens FormAddEditBotInter in mode 1 (add) or 2 (edit) and takes its rule when accepted.
    void openRuleDialog(qint16 mode);
};
