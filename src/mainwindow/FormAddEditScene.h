#pragma once
// "Add Scene" / "Edit Scene": name, remarks, the Flash movie of each player and
// the capture settings of each capture device, handed over through the
// gSceneDlg... variables.
#include <QDialog>
#include <QList>
#include <QString>
#include <QtGlobal>
#include "support/CheckedArray.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;

extern qint16 gSceneDialogMode;                      // 1 add, 2 edit
extern QString gSceneDlgName;
extern QString gSceneDlgRemarks;
extern CheckedArray<QString, 0, 15> gSceneDlgMovies;
extern CheckedArray<qint16, 0, 3> gSceneDlgFPS;
extern CheckedArray<qint16, 0, 3> gSceneDlgQuality;
extern CheckedArray<QString, 0, 3> gSceneDlgRootFolder;
extern CheckedArray<qint16, 0, 3> gSceneDlgNFolders;
extern CheckedArray<qint16, 0, 3> gSceneDlgMaxT;

class FormAddEditScene : public QDialog {
    Q_OBJECT
public:
    explicit FormAddEditScene(QWidget* owner = nullptr);

    QLineEdit* TextName;
    QLineEdit* TextRemarks;
    QLabel* LabelNumScene;
    QList<QLabel*> Label4;              // 0-15
    QList<QLineEdit*> TextMovie;        // 0-15
    QList<QPushButton*> CommandMovie1;  // 0-15
    QList<QGroupBox*> FrameCapture;     // 0-3
    QList<QLineEdit*> TextFPS;
    QList<QLineEdit*> TextQuality;
    QList<QLineEdit*> TextRootFolder;
    QList<QLineEdit*> TextNFolders;
    QList<QLineEdit*> TextMaxT;
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    void Form_Load();
    void CommandMovie1_Click(int index);
    void CommandOK_Click();
    void CommandCancel_Click();
};
