#pragma once
// "QEL Display Manager Configuration": for each display manager its folder and
// its video applications, in a grid made when the form loads, one column a
// manager and one block of rows an application, scrolled both ways.
#include <QDialog>
#include <QtGlobal>
#include "devices/cScrollBar.h"
#include "support/CheckedArray.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QResizeEvent;

class FormDisplayConfig : public QDialog {
    Q_OBJECT
public:
    explicit FormDisplayConfig(QWidget* owner = nullptr);

    // The number of managers; the opener sets it before the form loads.
    qint16 iNumQDMs = 0;

    QGroupBox* Frame1;           // caption "FrameHead": stays at the top
    QLabel* LabelQDMPort;
    QLineEdit* TextQDMPort;
    CheckedArray<QComboBox*, 0, 7> comboNumApps;
    CheckedArray<QPushButton*, 0, 7> CommandCopyConfig;
    QGroupBox* FrameOKCancel;    // caption "FrameOK": stays at the foot
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    // The grid made at load, manager i in column i: "LabelAnalog0", "TxtPath0",
    // and per application "LabelVideoApp0_1", "TextVideoApp0_1", ...
    CheckedArray<QLabel*, 0, 7> LabelAnalog;
    CheckedArray<QLineEdit*, 0, 7> TxtPath;
    CheckedArray2<QLabel*, 0, 7, 0, 7> LabelVideoApp;
    CheckedArray2<QLineEdit*, 0, 7, 0, 7> TextVideoApp;
    CheckedArray2<QLabel*, 0, 7, 0, 7> LabelWindowName;
    CheckedArray2<QLineEdit*, 0, 7, 0, 7> WindowName;
    CheckedArray2<QLabel*, 0, 7, 0, 7> LabelVideoAppPath;
    CheckedArray2<QLineEdit*, 0, 7, 0, 7> VideoAppPath;
    CheckedArray2<QCheckBox*, 0, 7, 0, 7> VideoAppLaunch;
    CheckedArray2<QLabel*, 0, 7, 0, 7> VideoAppLaunchLabel;

    // The form's two scroll bars, the first across and the second down. Like
    // the form's own variables they outlive an unload; the form marks the bars
    // as gone before it unloads.
    static cScrollBar cScrollH;
    static cScrollBar cScrollV;

    // Runs when the form is first shown: makes and fills the grid.
    void Form_Load();
    // Runs on every resize, the first display included.
    void Form_Resize();
    void comboNumApps_Click(int index);
    void CommandCopyConfig_Click(int index);
    void CommandOK_Click();
    void CommandCancel_Click();

    void setVisible(bool visible) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeColumn(int manager);
    void showApplications(int manager);
    bool m_loaded = false;
};
