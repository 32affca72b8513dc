#pragma once
// The splash picture: shown while the program starts, and as the About box.
#include <QDialog>

class QLabel;

class FormEntry : public QDialog {
    Q_OBJECT
public:
    explicit FormEntry(QWidget* owner = nullptr);

    QLabel* Image1;

    // A click on the picture unloads the form; that is how the About box closes.
    void Image1_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
