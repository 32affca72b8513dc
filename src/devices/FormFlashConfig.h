#pragma once
// "Flash Configuration": the network values of the Flash players and the
// network folder of each player, written straight into the main record.
#include <QDialog>
#include <QList>
#include <QtGlobal>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

class FormFlashConfig : public QDialog {
    Q_OBJECT
public:
    explicit FormFlashConfig(QWidget* owner = nullptr);

    // The number of players, set by the opener before the form is shown.
    qint16 iNumFlash = 0;

    QLineEdit* TextFlashPort;
    QLineEdit* TextUDPPort;
    QCheckBox* CheckUDPEnabled;
    QLineEdit* TextBroadcastIP;
    QLineEdit* TextPerformanceInfo;
    QList<QLabel*> LabelN;               // 0-15, row captions
    QList<QLineEdit*> TextFlashPlayer;   // 0-15, folder of each player
    QList<QCheckBox*> CheckCopyCfg;      // 0-15
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    void Form_Load();
    void CheckUDPEnabled_Click();
    void CommandOK_Click();
    void CommandCancel_Click();

protected:
    void showEvent(QShowEvent* event) override;

private:
    bool m_loaded = false;
};
