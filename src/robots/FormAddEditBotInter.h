#pragma once
// "Add RukaBot Interaction Event": the dialog of one robot rule. Nothing fills
// its lists and its OK stores nothing: it is left open by OK and closed by
// Cancel or Quit, which clear the accepted flag.
#include <QDialog>

class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;

class FormAddEditBotInter : public QDialog {
    Q_OBJECT
public:
    explicit FormAddEditBotInter(QWidget* owner = nullptr);

    QMenu* File;
    QAction* Save;
    QAction* Quit;

    QComboBox* ComboInterType;
    QComboBox* ComboSource;
    QComboBox* ComboTarget;
    QComboBox* ComboItem1;
    QComboBox* ComboItem2;
    QComboBox* ComboItem3;
    QComboBox* ComboItem4;
    QComboBox* ComboItem5;
    QComboBox* ComboItem6;
    QComboBox* ComboItemEmbrague;
    QComboBox* ComboItemSelect;
    QLineEdit* TextMIDIFile1;
    QLineEdit* TextMIDIFile2;
    QLineEdit* TextMIDIFile3;
    QLineEdit* TextMIDIFile4;
    QLineEdit* TextMIDIFile5;
    QLineEdit* TextMIDIFile6;
    QPushButton* CommandBrowse1;
    QPushButton* CommandBrowse2;
    QPushButton* CommandBrowse3;
    QPushButton* CommandBrowse4;
    QPushButton* CommandBrowse5;
    QPushButton* CommandBrowse6;
    QCheckBox* CheckLoop;
    QLineEdit* TextRemarks;
    QLabel* LabelNumScene;
    QLabel* LabelNumPart;
    QLabel* LabelNumEvent;
    QLabel* LabelName;
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    void Form_Load();
    void ComboInterType_Change();
    void CommandOK_Click();
    void CommandCancel_Click();
    // Each browse button asks for a MIDI file for the text box of its number;
    // Cancel in the file dialog keeps the text.
    void CommandBrowse1_Click();
    void CommandBrowse2_Click();
    void CommandBrowse3_Click();
    void CommandBrowse4_Click();
    void CommandBrowse5_Click();
    void CommandBrowse6_Click();
    void Save_Click();
    void Quit_Click();

    // Escape and the window's close box are a Cancel.
    void reject() override;

private:
    void browseMIDIFile(QLineEdit* text);   // TextMIDIFile1 to 6
};
