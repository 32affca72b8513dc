#pragma once
// The main window: the scene and rule lists on one view, the device panel on
// the other, and the menus of the whole program.
#include <QList>
#include <QMainWindow>
#include <QString>
#include <memory>
#include "support/ModuleGUI.h"

class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QPushButton;
class QTreeWidget;
class QCloseEvent;
class QResizeEvent;

class FormInitial : public QMainWindow {
    Q_OBJECT
public:
    explicit FormInitial(QWidget* parent = nullptr);

    // --- menus ---
    QMenu* File;
    QAction* New;
    QAction* Open;
    QAction* Save;
    QAction* SaveAs;
    QAction* Print;
    QAction* CheckPerformance;     // runs the check of the performance and shows its findings
    QAction* Quit;
    QMenu* Edit;
    QAction* Cut;
    QAction* Copy;
    QAction* Paste;
    QMenu* Setup;
    QAction* TheName;
    QAction* Components;           // the device counts as one dialog
    QMenu* ScenesParts;
    QAction* AddScene;
    QAction* EditScene;
    QAction* Remove;
    QMenu* Help;
    QAction* About;

    // Setup menu: the digital IO cards dialog.
    QAction* DigitalIO;
    void DigitalIO_Click();

    // --- always on show ---
    QLabel* TextName;              // the title of the performance
    QPushButton* CommandConn;      // switches to the rule view
    QPushButton* CommandRules;     // switches to the device view

    // --- rule view ---
    QListWidget* ListGlobalRules;
    QTreeWidget* ListMain2;        // scenes, then the empty end row
    QPushButton* CommandAddScene;
    QPushButton* CommandEdit;
    QPushButton* CommandDelete;
    QPushButton* CommandShowConfig;
    QPushButton* CommandUp;
    QPushButton* CommandDown;
    QList<QPushButton*> CommandColor;        // 0-7
    QPushButton* CommandBots;
    QLabel* Label5;
    QLabel* LabelNumScene;
    QLabel* LabelName;
    QLabel* Label1;
    QList<QCheckBox*> CheckSource;           // 0-8
    QLabel* Label3;
    QList<QCheckBox*> CheckTarget;           // 0-5
    QLabel* Label15;
    QComboBox* TextSearched;
    QPushButton* CommandAdd;
    QList<QPushButton*> CommandTargetsFilt;  // 0-4
    QTreeWidget* ListEvents;

    // --- device view ---
    QList<QLabel*> DeviceLabels;             // Label8 to Label14, Label16
    QComboBox* ComboNExos;
    QComboBox* ComboNTotems;
    QComboBox* ComboNOSCs;
    QComboBox* ComboNArduinos;
    QComboBox* ComboNScreens;
    QComboBox* ComboNFlash;
    QComboBox* ComboNMIDI;
    QComboBox* ComboNVideoCaps;
    QPushButton* ExoskeletonsCalibration;
    QPushButton* CommandItems;
    QPushButton* CommandOSC;
    QPushButton* ArduinoConfig;
    QPushButton* CommandScreen;
    QPushButton* CommandFlash;
    QPushButton* CommandPorts;
    QLabel* LabelEvPerSec;
    QLineEdit* txtEvPerSec;
    QPushButton* CommandTalpor;
    QPushButton* CommandUnlock;
    QPushButton* CommandLock;

    // 0-based row of ListMain2 last selected; -1 when no scene row is selected.
    qint16 iSelectedRow = -1;
    // 0-based position of the rule of the row last clicked in ListEvents; -1: none.
    qint16 iSelectedRule = -1;
    // Where the pointer was when a mouse button last went up over ListEvents or
    // ListMain2 (or down over ListMain2), in the list's own coordinates.
    float fMouseX = 0;
    float fMouseY = 0;

    // The start sequence: runs before the window is shown.
    void Form_Load();
    void Form_Resize();
    // The closing steps; returns false when the close was refused.
    bool Form_Unload();

    // "Save Configuration?" with Yes, No and Cancel; Yes saves. Returns the answer.
    MsgAnswer AskToSave();
    void New_Click();
    void Open_Click();
    void Save_Click();
    void SaveAs_Click();
    void Quit_Click();
    void TheName_Click();
    void Components_Click();
    void About_Click();
    void CheckPerformance_Click();

    // Copies the title of the performance into TextName.
    void ShowMainCfg();
    // Fills the device panel from the main record.
    void ShowDeviceCounts();
    void CommandConn_Click();
    void CommandRules_Click();
    void CommandUnlock_Click();
    void CommandLock_Click();
    void txtEvPerSec_Change();

    // Captions and places the filter check boxes by the devices that exist.
    void ArrangeFilterChecks();
    void CheckSource_Click(int index);
    void CheckTarget_Click(int index);

    void ComboNExos_Click();
    void ComboNTotems_Click();
    void ComboNOSCs_Click();
    void ComboNArduinos_Click();
    void ComboNScreens_Click();
    void ComboNFlash_Click();
    void ComboNMIDI_Click();
    void ComboNVideoCaps_Click();
    void ExoskeletonsCalibration_Click();
    void ArduinoConfig_Click();
    void CommandOSC_Click();
    void CommandFlash_Click();
    void CommandPorts_Click();
    void CommandScreen_Click();
    void CommandItems_Click();
    void CommandTalpor_Click();
    void CommandShowConfig_Click();
    void CommandBots_Click();

    // Scene list.
    void ListMain2_Click();
    void ListMain2_DblClick();
    void ListMain2_MouseDown(float x, float y);
    void ListMain2_MouseUp(float x, float y);
    void AddScene_Click();
    void EditScene_Click();
    // Removes scenes or rules, by the control that has the focus.
    void Remove_Click();
    void CommandAddScene_Click();
    void CommandEdit_Click();
    void CommandDelete_Click();
    void CommandUp_Click();
    void CommandDown_Click();
    void CommandColor_Click(int index);

    // Rule list.
    void ListGlobalRules_Click();
    void TextSearched_Change();
    void SyncSelectedScene();
    void RefreshRuleView();
    void ListEvents_MouseUp(float x, float y);
    void ListEvents_Click();
    void ListEvents_ColumnClick(int column);

    // Prints the rule list of the current subscene.
    void Print_Click();

    // Rule clipboard and ordering: add and edit through the rule editor, copy,
    // cut, paste, and the rule list's part of Remove.
    void CommandAdd_Click();
    void ListEvents_DblClick(class QTreeWidgetItem* row);
    void Copy_Click();
    void Cut_Click();
    void Paste_Click();
    void RemoveSelectedRules();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildMenus();
    void buildRuleView(QWidget* area);
    void buildDevicePanel(QWidget* area);
    void connectHandlers();
    void setRuleViewVisible(bool visible);
    void setDevicePanelVisible(bool visible);
    void setDevicePanelEnabled(bool enabled);
    void deviceCountActivated(QComboBox* combo, qint16& member, bool always);
    // The number of devices a dialog button would configure; 0 shows `message` and opens nothing.
    bool devicesToConfigure(int count, const char* message);
    // Shows a device dialog modally with the panel's m_bUpdate hand-over around it.
    void runDeviceDialog(class QDialog& dialog);
    void refillRuleList();
    // Appends a scene as the Add command does with no scene row selected.
    void appendScene(const std::shared_ptr<class CScene>& scene);
    void layoutControls();

    QList<QComboBox*> m_countCombos;
    QList<QPushButton*> m_dialogButtons;
    // The order of the column sort; flips on every header click, for the whole run.
    bool m_sortDescending = false;
};

class RuntimeError;
// A run-time failure that no handler traps: shows the run-time's message and
// ends the process with a non-zero status, running no closing step.
[[noreturn]] void EndWithRunTimeError(const RuntimeError& error);

// True while the device panel is locked (CommandUnlock was clicked).
extern bool bPanelLocked;

// The folder that holds the AutoSave folder: the program's own folder, or the
// per-user application data folder where the program's folder cannot be written.
QString AutoSaveRoot();
