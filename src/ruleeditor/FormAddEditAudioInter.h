#pragma once
// The rule editor: one rule of a subscene, or one global rule, with its list
// of actions. The opener sets gRuleEditMode, gRuleIndex and the view state,
// shows the dialog modally, and then tests gRuleAccepted. The controller is
// split by concern: the frame and loading here and in FormAddEditAudioInter.cpp,
// the source side, the actions and the acceptance each in a file of its own.
#include <QDialog>
#include <QString>
#include <QStringList>
#include <functional>
#include "rules/CAction.h"
#include "support/Collection.h"
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QMenuBar;
class QPushButton;
class QAction;
class QWidget;

// True while ListCommands copies an action into the controls.
extern bool gLoadingAction;

class FormAddEditAudioInter : public QDialog {
    Q_OBJECT
public:
    // Builds the controls and runs the load steps.
    explicit FormAddEditAudioInter(QWidget* parent = nullptr);

    // --- menus ---
    QMenuBar* MenuBar;
    QMenu* File;
    QAction* Save;
    QAction* Quit;
    QMenu* Message;
    QAction* AddMessage;
    QAction* RemoveMessage;
    // --- header ---
    QLabel* Label4;
    QLabel* LabelNumEvent;
    QLabel* Label5;
    QLabel* LabelNumPart;
    QLabel* Label2;
    QLabel* LabelNumScene;
    QLabel* LabelName;
    // --- source side ---
    QLabel* Label1;
    QComboBox* ComboInterType;
    QLabel* LabelSourceType;
    QComboBox* ComboSourceType;
    QLabel* LabelSource;
    QComboBox* ComboSource;
    QLabel* LabelItemVar;
    QComboBox* ComboItem;
    QLineEdit* TextVarSource;
    QLabel* LabelChannelSource;
    QComboBox* ComboChannelSource;
    QLabel* LabelValueSource;
    QComboBox* ComboValueSource;
    QLabel* LabelVelSource;
    QComboBox* ComboVelSource;
    QLabel* LabelMinSource;
    QLineEdit* TextMinSource;
    QLabel* LabelMaxSource;
    QLineEdit* TextMaxSource;
    QLabel* LabelLittleMin;
    QLabel* LabelLittleMax;
    QLabel* LabelSense;
    QComboBox* ComboSense;
    QCheckBox* CheckClip;
    QCheckBox* CheckInit;
    QLabel* Label6;
    QComboBox* TextGroup;
    QLabel* Label7;
    QLineEdit* TextRemarks;
    // --- action side ---
    QLabel* LabelTargetType;
    QComboBox* ComboTargetType;
    QLabel* Label9;
    QComboBox* ComboTarget;
    QLabel* Label3;
    QComboBox* ComboCommand;
    QLineEdit* TextVarTarget;
    QLabel* LabelChannel;
    QComboBox* ComboChannel;
    QLabel* LabelNoteControlProg;
    QComboBox* ComboNoteControlProg;
    QLabel* LabelVelValue;
    QComboBox* ComboVelValue;
    QLabel* LabelMin;
    QLineEdit* TextMin;
    QLabel* LabelMax;
    QLineEdit* TextMax;
    QLabel* LabelMIDIFile;
    QLineEdit* TextMIDIFile;
    QPushButton* CommandBrowse;
    QLabel* LabelAction;
    QComboBox* ComboAction;
    QLabel* LabelText;
    QPushButton* CommandAdd;
    QLabel* LabelCommandList;
    QListWidget* ListCommands;
    QPushButton* CommandUp;
    QPushButton* CommandDown;
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    // --- state of the dialog ---
    bool bLoading = false;
    qint16 iPrevInterType = 0;
    qint16 iPrevSourceType = 0;

    // --- frame ---
    void Form_Load();
    void LoadRule();
    void Save_Click();
    void Quit_Click();
    void CommandCancel_Click();
    // Writes the controls into the action at 1-based `index` of gEditActions once
    // the scratch action passes its checks. Nothing calls it.
    void UpdateCommand(int index);

    // --- source side ---
    void ComboInterType_Change();
    void ComboSourceType_Click();
    void ComboSource_Click();
    void ComboItem_Change();
    void ComboValueSource_Click();
    void ComboVelSource_Click();
    void ComboSense_Click();
    void CheckClip_Click();

    // --- actions ---
    void ComboTargetType_Click();
    void ComboTarget_Click();
    void ComboCommand_Change();
    void ComboNoteControlProg_Click();
    void ComboVelValue_Click();
    void TextMin_Change();
    void TextMax_Change();
    void TextVarTarget_Change();
    void TextMIDIFile_Change();
    void ComboChannel_Click();
    void ComboAction_Click();
    void CommandBrowse_Click();
    void CommandAdd_Click();
    void AddMessage_Click();
    void RemoveMessage_Click();
    void CommandUp_Click();
    void CommandDown_Click();
    void ListCommands_Click();
    void BuildCommandList(const Collection<CAction>& actions, QListWidget* list);
    bool TargetCombosOK();
    QString BuildCommandString();
    void StoreAction(CAction& action);
    void ApplyActionEdit();

    // --- accepting ---
    void CommandOK_Click();
    QString BuildEventString();

    // The kinds and numbers read from the combos.
    qint16 interType() const;
    qint16 sourceKind() const;
    qint16 targetKind() const;
    qint16 sourceNumber() const;
    qint16 targetNumber() const;

private:
    void buildControls();
    void connectHandlers();
    void showSourceBounds(bool visible);
    void showTargetBounds(bool visible);
    void addTargetType(const QString& text);
    void moveAction(int by);
};

// Helpers of the controller over its combos, shared by its files.
namespace editor {
// Selects a list index as the old list boxes did: -1 deselects, any index
// outside the list is a run-time error and the selection stays.
void select(QComboBox* combo, int index);
// Selects the entry with this text; a run-time error when there is none.
void selectText(QComboBox* combo, const QString& text);
// Removes every entry with this text; removing the selected one leaves none selected.
void removeAll(QComboBox* combo, const QString& text);
void addIfAbsent(QComboBox* combo, const QString& text);
// Adds entries without touching the text shown, as the old combos did.
void addKeepingText(QComboBox* combo, const QStringList& entries);
// The list index as the old combos gave it: -1 when a typed text matches no entry.
int listIndex(const QComboBox* combo);
// True when the control is not hidden (whether or not its window is on screen).
bool shown(const QWidget* widget);
// Runs the statements with gSuppressComboEvents raised.
void suppressed(const std::function<void()>& statements);
// An empty text becomes "0".
void zeroIfEmpty(QComboBox* combo);
// A text beginning with "." gets a "0" in front.
QString leadingZero(const QString& text);
}
