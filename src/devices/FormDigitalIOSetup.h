#pragma once
// "Digital IO Setup": how many digital IO cards the system has, one to four,
// and each card's ID and numbers of inputs and outputs.
#include <QDialog>
#include <QList>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

class FormDigitalIOSetup : public QDialog {
    Q_OBJECT
public:
    explicit FormDigitalIOSetup(QWidget* owner = nullptr);

    QLabel* LabelNCards;
    QComboBox* ComboNCards;         // "1" to "4"
    QList<QLabel*> LabelCard;       // 0-3
    QList<QLabel*> LabelID;         // 0-3
    QList<QLineEdit*> TextID;       // 0-3
    QList<QLabel*> LabelNIn;        // 0-3
    QList<QLineEdit*> TextNIn;      // 0-3
    QList<QLabel*> LabelNOut;       // 0-3
    QList<QLineEdit*> TextNOut;     // 0-3
    QPushButton* CommandOK;
    QPushButton* CommandCancel;

    void Form_Load();
    void ComboNCards_Click();
    void CommandOK_Click();
    void CommandCancel_Click();

protected:
    void showEvent(QShowEvent* event) override;

private:
    // Shows the first `cards` rows filled from the tables and hides the rest.
    void showCards(int cards, bool fill);

    bool m_loaded = false;
};
